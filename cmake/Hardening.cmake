# What makes a release harder to attack: canaries on stacks, no jumps over guard pages, checked
# calls and containers, a read-only relocation table that is filled at the start, and a position
# that is the machine's choice. scripts/check-hardening looks whether a program has them.
include(CheckPIESupported)
check_pie_supported()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT NST_SANITIZE)
  add_compile_options(
    "$<$<CONFIG:Release>:-fstack-protector-strong;-fstack-clash-protection>"
    # Some compilers define it themselves, with another value.
    "$<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
  add_compile_definitions("$<$<CONFIG:Release>:_GLIBCXX_ASSERTIONS>")
  add_link_options("$<$<CONFIG:Release>:-Wl,-z,relro,-z,now>")
endif()
