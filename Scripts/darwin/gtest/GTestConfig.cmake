# The test framework for a system that this one is not: built from the sources that the distribution packs.
if(NOT TARGET GTest::gtest_main)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/gtest EXCLUDE_FROM_ALL)
endif()
