# quazo_test(<name> <source>... [LINK <target>...] [DISPLAY]): one program of GoogleTest tests.
# With DISPLAY its tests need an X server; they bring a virtual one and carry the label "display".

include(GoogleTest)

function(quazo_test name)
  cmake_parse_arguments(TEST "DISPLAY" "" "LINK" ${ARGN})
  add_executable(${name} ${TEST_UNPARSED_ARGUMENTS})
  target_link_libraries(${name} PRIVATE quazo_compiler ${TEST_LINK} GTest::gmock GTest::gtest_main)
  if(QUAZO_SANITIZE)
    target_link_libraries(${name} PRIVATE keep_modules)
  endif()
  set(environment
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/leak_suppressions.txt:print_suppressions=0"
    "UBSAN_OPTIONS=print_stacktrace=1"
    "ASAN_OPTIONS=detect_stack_use_after_return=1:strict_string_checks=1")
  set(properties TIMEOUT 300 ENVIRONMENT "${environment}")
  if(TEST_DISPLAY)
    list(APPEND properties LABELS display)
  endif()
  gtest_discover_tests(${name} NO_PRETTY_VALUES DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
    PROPERTIES ${properties})
endfunction()
