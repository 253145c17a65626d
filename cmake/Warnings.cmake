# Compiler settings of every target of this project: warnings are errors.
add_library(folivant_options INTERFACE)
if(MSVC)
  target_compile_options(folivant_options INTERFACE /W4 /WX /utf-8 /permissive-)
else()
  target_compile_options(folivant_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wold-style-cast -Wnull-dereference
    -Wnon-virtual-dtor -Woverloaded-virtual -Werror
    # GCC 12 warns of overlapping copies inside std::string where there are none (its bug 105651).
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
  if(WIN32)
    target_compile_definitions(folivant_options INTERFACE UNICODE _UNICODE)
  endif()
  if(FOLIVANT_SANITIZE)
    target_compile_options(folivant_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                                      -fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS)
    target_link_options(folivant_options INTERFACE -fsanitize=address,undefined)
  endif()
endif()
target_include_directories(folivant_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
