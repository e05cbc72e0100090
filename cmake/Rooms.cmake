# Every target is built with the same warnings and sanitizers.
function(nst_flags target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
  target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                             QT_NO_FOREACH QT_NO_KEYWORDS)
  if(NST_SANITIZE)
    target_compile_options(${target} PRIVATE -fsanitize=${NST_SANITIZE} -fno-sanitize-recover=all
                           -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=${NST_SANITIZE})
  endif()
endfunction()

# nst_room(NAME SOURCES ... USES ...): one static library for the room in the current folder.
# Headers are included by their path below src/ ("platform/core/Waiting.h").
function(nst_room name)
  cmake_parse_arguments(ROOM "" "" "SOURCES;USES" ${ARGN})
  add_library(${name} STATIC ${ROOM_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ROOM_USES})
  nst_flags(${name})
endfunction()

# nst_test(ROOM SOURCES ... USES ...): the tests of one room, run on Qt's offscreen platform.
# The label is the room's name, so that `ctest -L settings` runs them alone. With USB they run on an
# emulated USB (tools/support/UsbEmulator.h); not under the thread sanitizer, which cannot bear it.
function(nst_test room)
  cmake_parse_arguments(TEST "USB" "" "SOURCES;USES" ${ARGN})
  add_executable(${room}-tests ${TEST_SOURCES})
  target_include_directories(${room}-tests PRIVATE ${PROJECT_SOURCE_DIR}/tests
                             ${PROJECT_SOURCE_DIR}/tools)
  target_link_libraries(${room}-tests PRIVATE ${room} ${TEST_USES} beds
                        GTest::gtest GTest::gtest_main Qt6::Test)
  nst_flags(${room}-tests)
  # Nothing shows on the desktop of whoever runs them.
  set(environment QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 DBUS_SESSION_BUS_ADDRESS=disabled:)
  if(TEST_USB AND NOT NST_SANITIZE MATCHES thread)
    list(APPEND environment LD_PRELOAD=libumockdev-preload.so.0 ASAN_OPTIONS=verify_asan_link_order=0)
  endif()
  # The property ENVIRONMENT of discovered tests takes one variable only.
  set_target_properties(${room}-tests PROPERTIES CROSSCOMPILING_EMULATOR "env;${environment}")
  gtest_discover_tests(${room}-tests DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 120 LABELS ${room})
endfunction()
