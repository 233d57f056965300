# Every target links tavrin_warnings, so the flags live in one place.
add_library(tavrin_warnings INTERFACE)
target_compile_options(tavrin_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>)
if(TAVRIN_WERROR)
    target_compile_options(tavrin_warnings INTERFACE -Werror)
endif()

if(TAVRIN_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
