# How libraries and tests are declared. A library is one folder of src/; its PUBLIC and PRIVATE
# lists are exact, and tests/architecture holds them against docs/architecture.md.

add_library(tallyvane_options INTERFACE)
target_include_directories(tallyvane_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_definitions(tallyvane_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)
target_compile_options(tallyvane_options INTERFACE
    -pthread
    -Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Wno-sign-conversion             # part of -Wconversion for clang alone
    -Wno-missing-field-initializers # a record's other fields keep their defaults
    # GCC sees the frames of coroutines that a unity build includes as types of a header.
    $<$<AND:$<BOOL:${CMAKE_UNITY_BUILD}>,$<CXX_COMPILER_ID:GNU>>:-Wno-subobject-linkage>)

# tallyvane_moc(<target> <file>...)
# Runs moc on files of the target. They include what it makes: moc_<name>.cpp of a header, <name>.moc
# of a source. moc needs no other header; AUTOMOC would show it all of Qt's, and reading those takes a
# hundred times as long.
function(tallyvane_moc target)
    foreach(file IN LISTS ARGN)
        cmake_path(GET file STEM name)
        set(made ${CMAKE_CURRENT_BINARY_DIR}/moc_${name}.cpp)
        if(file MATCHES "\\.cpp$")
            set(made ${CMAKE_CURRENT_BINARY_DIR}/${name}.moc)
        endif()
        qt_generate_moc(${file} ${made})
        set_source_files_properties(${made} PROPERTIES HEADER_FILE_ONLY ON)
        target_sources(${target} PRIVATE ${made})
    endforeach()
    target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()

# tallyvane_library(<folder> SOURCES <file>... [MOC <header>...] [PUBLIC <target>...] [PRIVATE <target>...])
# The headers after MOC have a Q_OBJECT or the like.
function(tallyvane_library folder)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;MOC;PUBLIC;PRIVATE")
    add_library(tallyvane_${folder} STATIC ${ARG_SOURCES})
    tallyvane_moc(tallyvane_${folder} ${ARG_MOC})
    target_link_libraries(tallyvane_${folder}
        PUBLIC ${ARG_PUBLIC}
        PRIVATE tallyvane_options ${ARG_PRIVATE})
endfunction()

# tallyvane_tests(<folder> SOURCES <file>... LINK <target>... [LABEL <label>] [THREADS <test>...])
# The folder's test program, <folder>_tests, and a ctest entry for each of its files <test>_test.cpp,
# with the label "unit" unless another is named. The tests after THREADS also get the label
# "threads": the thread sanitizer's build has these alone. A test that skips anything shows as skipped.
function(tallyvane_tests folder)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "LABEL" "SOURCES;LINK;THREADS")
    set(label unit)
    if(ARG_LABEL)
        set(label ${ARG_LABEL})
    endif()
    set(program ${folder}_tests)
    list(TRANSFORM ARG_THREADS APPEND _test)
    set(tests ${ARG_SOURCES})
    list(FILTER tests INCLUDE REGEX "_test\\.cpp$")
    foreach(test IN LISTS tests)
        cmake_path(GET test STEM name)
        add_test(NAME ${name} COMMAND ${program} ${name})
        set_tests_properties(${name} PROPERTIES LABELS ${label} SKIP_RETURN_CODE 77)
        if(name IN_LIST ARG_THREADS)
            set_property(TEST ${name} APPEND PROPERTY LABELS threads)
        elseif(ARG_THREADS AND CMAKE_CXX_FLAGS MATCHES "-fsanitize=thread")
            list(REMOVE_ITEM ARG_SOURCES ${test})
            list(REMOVE_ITEM tests ${test})
        endif()
    endforeach()
    add_executable(${program} ${ARG_SOURCES})
    tallyvane_moc(${program} ${tests})
    target_link_libraries(${program} PRIVATE tallyvane_options tallyvane_test_support ${ARG_LINK})
    if(ARG_THREADS)
        add_dependencies(tests_of_threads ${program})
    endif()
endfunction()

# tallyvane_qml_module(<folder of src/ui> URI <uri> QML <file>... [SINGLETONS <file>...]
#     [SOURCES <file>...] [RESOURCES <file>...] [DEPENDENCIES <uri>...] [PUBLIC <target>...] [PRIVATE <target>...])
# One QML module as the static library tallyvane_ui_<folder>. Whoever links that has the module in
# its resources below qrc:/ and its types registered, without a word in C++.
function(tallyvane_qml_module folder)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "URI"
        "QML;SINGLETONS;SOURCES;RESOURCES;DEPENDENCIES;PUBLIC;PRIVATE")
    set(target tallyvane_ui_${folder})
    set(QT_QML_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/qml) # where modules and qmllint find others
    set_source_files_properties(${ARG_SINGLETONS} PROPERTIES QT_QML_SINGLETON_TYPE TRUE)
    if(CMAKE_BUILD_TYPE STREQUAL "Debug")
        set(cache NO_CACHEGEN) # compiling QML to C++ takes a quarter of the build
    endif()
    qt_add_library(${target} STATIC)
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON
        # Made as C++ too, two builds would differ: its declarations stand in no fixed order.
        QT_QMLCACHEGEN_ARGUMENTS --only-bytecode)
    qt_add_qml_module(${target}
        URI ${ARG_URI}
        VERSION 1.0
        RESOURCE_PREFIX /
        NO_PLUGIN
        ${cache}
        DEPENDENCIES QtQuick ${ARG_DEPENDENCIES}
        QML_FILES ${ARG_QML} ${ARG_SINGLETONS}
        SOURCES ${ARG_SOURCES}
        RESOURCES ${ARG_RESOURCES})
    # The generated registration includes the headers of a module by their bare names.
    target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(${target}
        PUBLIC ${ARG_PUBLIC}
        PRIVATE tallyvane_options ${ARG_PRIVATE})
    # Nothing refers to the object that registers the types, but for this: the function in it.
    string(REPLACE . _ function qml_register_types_${ARG_URI})
    string(LENGTH ${function} length)
    target_link_options(${target} INTERFACE LINKER:--undefined=_Z${length}${function}v)
endfunction()
