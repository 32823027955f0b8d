# zu_target_warnings(<target>): the project's warnings, all of them errors.
function(zu_target_warnings target)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /WX /permissive- /utf-8 $<$<COMPILE_LANGUAGE:CXX>:/Zc:__cplusplus>)
        # The standard's functions are no worse than those that this compiler has beside them.
        target_compile_definitions(${target} PRIVATE _CRT_SECURE_NO_WARNINGS)
    else()
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror
            $<$<COMPILE_LANGUAGE:CXX>:-Wsuggest-override>)
        # Windows declares the interfaces of COM with destructors that everybody could call.
        if(NOT WIN32)
            target_compile_options(${target} PRIVATE $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>)
        endif()
    endif()
endfunction()
