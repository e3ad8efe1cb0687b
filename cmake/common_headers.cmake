# What nearly every file includes, compiled once for all targets that link tallyvane_options.
# The release preset does without, so that a missing #include shows.

file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/common_headers.cpp CONTENT "")
add_library(tallyvane_common_headers OBJECT ${PROJECT_BINARY_DIR}/common_headers.cpp)
target_link_libraries(tallyvane_common_headers PRIVATE tallyvane_options QCoro6::Core)
target_precompile_headers(tallyvane_common_headers PRIVATE
    <QCoro/QCoroFuture> <QCoro/QCoroTask>
    <QtCore/QCoreApplication> <QtCore/QDateTime> <QtCore/QDir> <QtCore/QFuture>
    <QtCore/QJsonArray> <QtCore/QJsonDocument> <QtCore/QJsonObject> <QtCore/QLocale>
    <QtCore/QPromise> <QtCore/QRegularExpression> <QtCore/QTimer> <QtCore/QUrl> <QtCore/QVariant>
    <algorithm> <array> <chrono> <cmath> <expected> <filesystem> <functional> <map> <memory>
    <optional> <span> <string> <vector>)

function(tallyvane_use_common_headers folder)
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(libraries ${target} LINK_LIBRARIES)
        if("tallyvane_options" IN_LIST libraries AND NOT target STREQUAL "tallyvane_common_headers")
            target_precompile_headers(${target} REUSE_FROM tallyvane_common_headers)
        endif()
    endforeach()
    get_property(folders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    foreach(subfolder IN LISTS folders)
        tallyvane_use_common_headers(${subfolder})
    endforeach()
endfunction()
