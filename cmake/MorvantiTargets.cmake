# Every folder of the house is one library of rules, and one of windows where it has windows.
# Rules are not linked to Qt, so that a Qt header in a rule does not compile.

add_library(morvanti_warnings INTERFACE)
target_compile_options(morvanti_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wnull-dereference
    # g++ 12 sees overlaps in every std::string that is assigned a literal (its bug 105651).
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond;-Wlogical-op;-Wno-restrict>)

# morvanti_precompile(TARGET FIRST <header> ...): the headers that most sources of some targets include are compiled once, by
# the target that comes first.
function(morvanti_precompile target property)
    get_property(first GLOBAL PROPERTY ${property})
    if(first)
        target_precompile_headers(${target} REUSE_FROM ${first})
    else()
        target_precompile_headers(${target} PRIVATE ${ARGN})
        set_property(GLOBAL PROPERTY ${property} ${target})
    endif()
endfunction()

# morvanti_rules(NAME SOURCES a.cpp ... USES other ...)
function(morvanti_rules name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;USES")
    add_library(${name} STATIC ${arg_SOURCES})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PUBLIC ${arg_USES} PRIVATE morvanti_warnings)
endfunction()

# morvanti_windows(NAME SOURCES a.cpp ... USES other ...)
function(morvanti_windows name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;USES")
    add_library(${name} STATIC ${arg_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_compile_definitions(${name} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_FOREACH QT_NO_KEYWORDS)
    target_link_libraries(${name} PUBLIC ${arg_USES} Qt6::Widgets PRIVATE morvanti_warnings)
    morvanti_precompile(${name} morvanti_qt_headers <QApplication> <QBoxLayout> <QGridLayout> <QGroupBox> <QKeyEvent>
        <QLabel> <QLineEdit> <QListWidget> <QMenu> <QPushButton> <QScreen>)
endfunction()
