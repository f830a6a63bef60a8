# A layer of the program is a static library that links only what the layer may know, so that an include of
# anything else does not compile. Its headers are compiled alone by the target all_verify_interface_header_sets.

set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)

# ovindra_library(NAME SOURCES file... [HEADERS file...] [LINKS target...] [PRIVATE_LINKS target...])
function(ovindra_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;HEADERS;LINKS;PRIVATE_LINKS" ${ARGN})
  if(arg_SOURCES)
    add_library(${name} STATIC ${arg_SOURCES})
    set(scope PUBLIC)
    target_link_libraries(${name} PRIVATE ovindra_warnings ${arg_PRIVATE_LINKS})
  else()
    add_library(${name} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_sources(${name} ${scope} FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${arg_HEADERS})
  target_include_directories(${name} ${scope} ${PROJECT_SOURCE_DIR})
  target_link_libraries(${name} ${scope} ${arg_LINKS})
endfunction()

# ovindra_program(NAME SOURCES file... [LINKS target...])
function(ovindra_program name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ovindra_warnings ${arg_LINKS})
endfunction()

# ovindra_test(NAME [TOGETHER] SOURCES file... [LINKS target...]): a GoogleTest program; each of its tests is one of ctest,
# or all of them are one, where a test's start takes longer than the test.
function(ovindra_test name)
  cmake_parse_arguments(arg "TOGETHER" "" "SOURCES;LINKS" ${ARGN})
  find_package(GTest REQUIRED)
  include(GoogleTest)
  add_executable(${name} ${arg_SOURCES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
  target_link_libraries(${name} PRIVATE ovindra_warnings ${arg_LINKS} GTest::gtest_main)
  if(arg_TOGETHER)
    add_test(NAME ${name} COMMAND ${name})
  else()
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST)
  endif()
endfunction()
