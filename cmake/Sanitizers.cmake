# With ZU_SANITIZE every target of the project is built for the address and undefined-behaviour sanitizers, and the
# first finding ends the program.
if(ZU_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
