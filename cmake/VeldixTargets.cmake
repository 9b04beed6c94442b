# Flags and shapes of the project's targets: one small static library a core, one a folder of forms,
# one test program for each of them.

add_library(veldix_flags INTERFACE)
target_compile_features(veldix_flags INTERFACE cxx_std_20)
# Contraction changes the last bit of most samples where the processor has FMA.
target_compile_options(veldix_flags INTERFACE
  -ffp-contract=off -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>  # false alarms on std::string in GCC 12
  $<$<BOOL:${VELDIX_WERROR}>:-Werror>)
target_include_directories(veldix_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(VELDIX_SANITIZE)
  target_compile_options(veldix_flags INTERFACE
    -fsanitize=${VELDIX_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(veldix_flags INTERFACE -fsanitize=${VELDIX_SANITIZE})
endif()

# veldix_core(NAME SOURCES ... [LINK ...]): a library that includes no Qt header.
function(veldix_core name)
  cmake_parse_arguments(A "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${A_SOURCES})
  target_link_libraries(${name} PUBLIC veldix_flags ${A_LINK})
endfunction()

# veldix_forms(NAME SOURCES ... [LINK ...]): windows, with Qt Widgets and moc.
function(veldix_forms name)
  cmake_parse_arguments(A "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${A_SOURCES})
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
  target_compile_definitions(${name} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
  target_link_libraries(${name} PUBLIC veldix_flags ${A_LINK} Qt6::Widgets)
endfunction()

# veldix_test(NAME SOURCES ... LINK ...): a GoogleTest program, run under both locales.
function(veldix_test name)
  cmake_parse_arguments(A "QT" "" "SOURCES;LINK" ${ARGN})
  add_executable(${name} ${A_SOURCES})
  target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
  target_compile_definitions(${name} PRIVATE VELDIX_DATA="${CMAKE_SOURCE_DIR}/tests/data"
                                             VELDIX_SOURCE="${CMAKE_SOURCE_DIR}")
  target_link_libraries(${name} PRIVATE veldix_flags ${A_LINK} GTest::gtest)
  if(A_QT)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(${name} PRIVATE veldix_support_forms Qt6::Test)
  else()
    target_link_libraries(${name} PRIVATE veldix_support GTest::gtest_main)
  endif()
  foreach(locale C.UTF-8 es_ES.UTF-8)
    add_test(NAME ${name}.${locale} COMMAND ${name})
    set_tests_properties(${name}.${locale} PROPERTIES
      ENVIRONMENT "LC_ALL=${locale};QT_QPA_PLATFORM=offscreen" TIMEOUT 600)
  endforeach()
endfunction()
