#pragma once

#include "history/usage_history.h"
#include "support/home_files.h"

namespace tallyvane::tests {

/// Whether the program's files below its data folder, if they are there, can be read whole.
inline bool areFilesWhole(const QString& dataHome) {
    const auto isWhole = [&dataHome](const char* name, auto decode) {
        const QString path = dataHome + QStringLiteral("/Gaugewell/") + QLatin1StringView(name);
        return !QFile::exists(path) || decode(readFile(path)).has_value();
    };
    return isWhole("quota-snapshot.json", model::decodeSnapshot) &&
           isWhole("usage-history.json", history::decodeHistory);
}

} // namespace tallyvane::tests
