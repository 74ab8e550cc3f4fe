# How a module is built: a calculation library without Qt, and a library of its forms.

add_library(forcelab_options INTERFACE)
target_compile_options(forcelab_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
  -ffp-contract=off)
if(FORCELAB_WARNINGS_AS_ERRORS)
  target_compile_options(forcelab_options INTERFACE -Werror)
endif()
if(FORCELAB_SANITIZE)
  target_compile_options(forcelab_options INTERFACE
    -fsanitize=${FORCELAB_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(forcelab_options INTERFACE -fsanitize=${FORCELAB_SANITIZE})
endif()
target_include_directories(forcelab_options INTERFACE ${PROJECT_SOURCE_DIR}/src)

# forcelab_calculation(core SOURCES a.cpp b.cpp [LINK forcelab_core])
function(forcelab_calculation NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_library(forcelab_${NAME} STATIC ${ARG_SOURCES})
  target_link_libraries(forcelab_${NAME} PUBLIC forcelab_options ${ARG_LINK})
endfunction()

# forcelab_qt_library(transform_forms SOURCES a.cpp b.cpp [LINK forcelab_transform])
function(forcelab_qt_library NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_library(forcelab_${NAME} STATIC ${ARG_SOURCES})
  target_compile_definitions(forcelab_${NAME} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII)
  target_link_libraries(forcelab_${NAME} PUBLIC forcelab_options Qt6::Widgets ${ARG_LINK})
  if(NOT NAME STREQUAL "screen")
    target_link_libraries(forcelab_${NAME} PUBLIC forcelab_screen)
    target_precompile_headers(forcelab_${NAME} REUSE_FROM forcelab_screen)
  endif()
endfunction()

# A module of the main menu: its calculation, and its forms in the folder forms/.
# forcelab_module(transform SOURCES Mohr.cpp ... FORMS forms/frmMohr.cpp ... [LINK forcelab_sections])
function(forcelab_module NAME)
  cmake_parse_arguments(ARG "" "" "SOURCES;FORMS;LINK" ${ARGN})
  forcelab_calculation(${NAME} SOURCES ${ARG_SOURCES} LINK forcelab_core ${ARG_LINK})
  if(ARG_FORMS)
    forcelab_qt_library(${NAME}_forms SOURCES ${ARG_FORMS} LINK forcelab_${NAME})
  endif()
endfunction()

# A test program, run once in the decimal-point and once in the decimal-comma setting.
# forcelab_test(test_core SOURCES ... LINK forcelab_core [QT])
function(forcelab_test NAME)
  cmake_parse_arguments(ARG "QT" "" "SOURCES;LINK" ${ARGN})
  if(ARG_QT)
    set(SUPPORT forcelab_qt_test_support)
  else()
    set(SUPPORT forcelab_test_support)
  endif()
  add_executable(${NAME} ${ARG_SOURCES})
  target_link_libraries(${NAME} PRIVATE ${SUPPORT} ${ARG_LINK})
  add_test(NAME ${NAME}.point COMMAND ${NAME} WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
  add_test(NAME ${NAME}.comma COMMAND ${NAME} --comma WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
endfunction()
