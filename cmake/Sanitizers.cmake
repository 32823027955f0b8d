# With ZU_SANITIZE every target of the project is built for the address and undefined-behaviour sanitizers, and the
# first finding ends the program. Visual Studio has the first of the two.
if(ZU_SANITIZE AND MSVC)
    add_compile_options(/fsanitize=address)
elseif(ZU_SANITIZE AND CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
elseif(ZU_SANITIZE)
    message(FATAL_ERROR "ZU_SANITIZE: no sanitizers are known of ${CMAKE_CXX_COMPILER_ID}")
endif()
