# Finds the SDK of LibreOffice (Debian: libreoffice-dev) and its program folder.
#
#   LibreOffice_FOUND, LibreOffice_PROGRAM_DIR
#   LibreOffice::uno       the libraries of UNO, to be found at run time in the program folder
#   libreoffice_headers(target TYPES com.sun.star....)   makes the C++ headers of these types for a target

find_path(LibreOffice_INCLUDE_DIR sal/types.h PATH_SUFFIXES libreoffice PATHS /usr/include)
find_path(LibreOffice_PROGRAM_DIR fundamentalrc PATHS /usr/lib/libreoffice/program NO_DEFAULT_PATH)
find_program(LibreOffice_CPPUMAKER cppumaker PATHS /usr/lib/libreoffice/sdk/bin)
foreach(name cppu cppuhelpergcc3 sal salhelpergcc3)
  find_library(LibreOffice_${name}_LIBRARY uno_${name} PATHS /usr/lib/libreoffice/sdk/lib)
  list(APPEND libreoffice_libraries LibreOffice_${name}_LIBRARY)
endforeach()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(LibreOffice
  REQUIRED_VARS LibreOffice_PROGRAM_DIR LibreOffice_INCLUDE_DIR LibreOffice_CPPUMAKER ${libreoffice_libraries})

if(LibreOffice_FOUND AND NOT TARGET LibreOffice::uno)
  add_library(LibreOffice::uno INTERFACE IMPORTED)
  foreach(library ${libreoffice_libraries})
    target_link_libraries(LibreOffice::uno INTERFACE ${${library}})
  endforeach()
  target_include_directories(LibreOffice::uno SYSTEM INTERFACE ${LibreOffice_INCLUDE_DIR})
  target_compile_definitions(LibreOffice::uno INTERFACE UNX GCC LINUX CPPU_ENV=gcc3 HAVE_GCC_VISIBILITY_FEATURE)
  # The office's objects live in another process; their stand-ins here have no type that a sanitizer knows.
  target_compile_options(LibreOffice::uno INTERFACE -fno-sanitize=vptr)
endif()

function(libreoffice_headers target)
  cmake_parse_arguments(HEADERS "" "" "TYPES" ${ARGN})
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/uno_headers)
  set(stamp ${folder}/made)
  list(JOIN HEADERS_TYPES "$<SEMICOLON>" types)
  add_custom_command(OUTPUT ${stamp}
    COMMAND ${LibreOffice_CPPUMAKER} -Gc -O${folder} "-T${types}"
      ${LibreOffice_PROGRAM_DIR}/types.rdb ${LibreOffice_PROGRAM_DIR}/types/offapi.rdb
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    COMMENT "Making the headers of the spreadsheet program's interfaces"
    VERBATIM)
  add_custom_target(${target}_uno_headers DEPENDS ${stamp})
  add_dependencies(${target} ${target}_uno_headers)
  target_include_directories(${target} SYSTEM PRIVATE ${folder})
endfunction()
