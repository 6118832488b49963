# How every target of the project is compiled, and the one way to add the library of a folder of src, or a test executable.

add_library(gullymark_options INTERFACE)
target_compile_options(gullymark_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
  -Wold-style-cast -Woverloaded-virtual -Wnull-dereference -Wdouble-promotion -Wformat=2 -Werror
  # A designated initializer leaves the members it does not name at their defaults, on purpose.
  -Wno-missing-field-initializers
  # Results are compared digit by digit with hand checks: no fused multiply-add, on any processor.
  -ffp-contract=off)
if(GULLYMARK_SANITIZE)
  target_compile_options(gullymark_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(gullymark_options INTERFACE -fsanitize=address,undefined)
  # The sanitizers' own branches make the compiler see null pointers that are not there.
  target_compile_options(gullymark_options INTERFACE -Wno-null-dereference)
endif()

# What users get resists an attack on its memory, and is the same wherever it is built. Tests of it need not: they are compiled
# in two thirds of the time.
set(is_test $<BOOL:$<TARGET_PROPERTY:GULLYMARK_TEST>>)
set(is_hardened $<AND:$<CONFIG:Release>,$<NOT:$<BOOL:${GULLYMARK_SANITIZE}>>,$<NOT:${is_test}>>)
target_compile_options(gullymark_options INTERFACE "$<$<AND:$<CONFIG:Release>,${is_test}>:-O0>")
target_compile_options(gullymark_options INTERFACE
  "$<${is_hardened}:-fstack-protector-strong;-fstack-clash-protection;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>"
  "$<$<CONFIG:Release>:-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.;-ffile-prefix-map=${CMAKE_BINARY_DIR}=build>")
target_link_options(gullymark_options INTERFACE "$<${is_hardened}:-pie;-Wl,-z,relro,-z,now>")

if(GULLYMARK_FUZZ)
  target_compile_options(gullymark_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
  # A sheet is captured by name, though its reference could be used without: the reader sees what a step works on.
  target_compile_options(gullymark_options INTERFACE -Wno-unused-lambda-capture)
endif()

# join_in_two(TARGET): where the build joins sources, a folder gives each of two processors one.
function(join_in_two target)
  get_target_property(sources ${target} SOURCES)
  list(LENGTH sources count)
  math(EXPR half "(${count} + 1) / 2")
  if(half LESS 8)
    set(half 8)
  endif()
  set_target_properties(${target} PROPERTIES UNITY_BUILD_BATCH_SIZE ${half})
endfunction()

# gullymark_library(engine SOURCES a.cpp b.cpp LINKS gullymark::platform [PRIVATE_LINKS SQLite::SQLite3])
# One static library for one folder below src. The link line is the boundary between the folders.
function(gullymark_library name)
  cmake_parse_arguments(LIB "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  add_library(gullymark_${name} STATIC ${LIB_SOURCES})
  add_library(gullymark::${name} ALIAS gullymark_${name})
  join_in_two(gullymark_${name})
  target_include_directories(gullymark_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(gullymark_${name}
    PUBLIC ${LIB_LINKS}
    PRIVATE gullymark_options ${LIB_PRIVATE_LINKS})
endfunction()

# gullymark_test(engine SOURCES a_test.cpp LINKS gullymark::engine [WHOLE])
# One test executable for one folder below tests. Every test case is known to ctest by its name;
# WHOLE makes the executable one entry, for tests whose start is dear (windows).
function(gullymark_test name)
  cmake_parse_arguments(TEST "WHOLE" "" "SOURCES;LINKS" ${ARGN})
  add_executable(test_${name} ${TEST_SOURCES})
  set_target_properties(test_${name} PROPERTIES GULLYMARK_TEST ON)
  join_in_two(test_${name})
  target_include_directories(test_${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_link_libraries(test_${name} PRIVATE gullymark_options ${TEST_LINKS} GTest::gtest GTest::gmock GTest::gtest_main)
  target_compile_definitions(test_${name} PRIVATE
    GULLYMARK_TEST_DIR="${CMAKE_SOURCE_DIR}/tests" GULLYMARK_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
    GULLYMARK_TEMPLATE="${CMAKE_BINARY_DIR}/bin/GullymarkAL10.rdb")
  add_dependencies(test_${name} gullymark_template)
  if(TEST_WHOLE)
    add_test(NAME ${name} COMMAND test_${name})
    set_tests_properties(${name} PROPERTIES COST 100)
  else()
    gtest_discover_tests(test_${name} TEST_PREFIX "${name}: " NO_PRETTY_VALUES DISCOVERY_TIMEOUT 60)
  endif()
endfunction()
