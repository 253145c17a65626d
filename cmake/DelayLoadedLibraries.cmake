# delay_loaded_libraries(<target> <library>...): links libraries whose DLLs are loaded at the first call instead of at the start.
# A run from the command line needs none of the libraries of the windows, and loading them all costs more than listing a
# small directory. Each is made from the ordinary import library and offers the same functions.
function(delay_loaded_libraries target)
  foreach(library IN LISTS ARGN)
    set(dll ${library}.dll)
    if(library STREQUAL winspool)
      set(dll winspool.drv)
    endif()
    if(MSVC)
      target_link_libraries(${target} PUBLIC ${library})
      target_link_options(${target} PUBLIC -DELAYLOAD:${dll})
    else()
      delay_import_library(${library} ${dll} made)
      target_link_libraries(${target} PUBLIC ${made})
    endif()
  endforeach()
  target_link_libraries(${target} PUBLIC delayimp)
endfunction()

function(delay_import_library library dll variable)
  find_program(NM x86_64-w64-mingw32-nm REQUIRED)
  find_program(DLLTOOL x86_64-w64-mingw32-dlltool REQUIRED)
  find_library(import_${library} ${library} REQUIRED)
  # nm has a word for every member without symbols.
  execute_process(COMMAND ${NM} --defined-only ${import_${library}} OUTPUT_VARIABLE symbols ERROR_QUIET
                  COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL " T [^\n]+" names "${symbols}")
  list(TRANSFORM names REPLACE "^ T " "")
  list(SORT names)
  list(JOIN names "\n" names)
  set(definition ${CMAKE_CURRENT_BINARY_DIR}/${library}.def)
  set(made ${CMAKE_CURRENT_BINARY_DIR}/lib${library}-delayed.a)
  file(CONFIGURE OUTPUT ${definition} CONTENT "EXPORTS\n@names@\n" @ONLY)
  if(${definition} IS_NEWER_THAN ${made})  # also when there is none yet; made anew, it would be linked anew
    execute_process(COMMAND ${DLLTOOL} -d ${definition} -D ${dll} -y ${made} COMMAND_ERROR_IS_FATAL ANY)
  endif()
  set(${variable} ${made} PARENT_SCOPE)
endfunction()
