# zu_target_warnings(<target>): the project's warnings, all of them errors.
function(zu_target_warnings target)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /WX /permissive- /utf-8)
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
