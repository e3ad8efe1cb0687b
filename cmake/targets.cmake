# How libraries and tests are declared. A library is one folder of src/; its PUBLIC and PRIVATE
# lists are exact, and tests/architecture holds them against docs/architecture.md.

add_library(tallyvane_options INTERFACE)
target_include_directories(tallyvane_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_definitions(tallyvane_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)
target_compile_options(tallyvane_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Wno-sign-conversion             # part of -Wconversion for clang alone
    -Wno-missing-field-initializers) # a record's other fields keep their defaults

# tallyvane_library(<folder> SOURCES <file>... [PUBLIC <target>...] [PRIVATE <target>...])
function(tallyvane_library folder)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;PUBLIC;PRIVATE")
    add_library(tallyvane_${folder} STATIC ${ARG_SOURCES})
    target_link_libraries(tallyvane_${folder}
        PUBLIC ${ARG_PUBLIC}
        PRIVATE tallyvane_options ${ARG_PRIVATE})
endfunction()

# tallyvane_test(<name> SOURCES <file>... LINK <target>... [LABELS <label>...])
# One Qt Test program and one ctest entry; the label is "unit" unless others are named.
function(tallyvane_test name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINK;LABELS")
    if(NOT ARG_LABELS)
        set(ARG_LABELS unit)
    endif()
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE tallyvane_options tallyvane_test_support ${ARG_LINK})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES LABELS "${ARG_LABELS}")
endfunction()
