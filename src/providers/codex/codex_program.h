#pragma once

#include "model/defaults_store.h"
#include "providers/process_runner_error.h"

#include <QtCore/QStringList>

#include <expected>
#include <optional>

namespace tallyvane::providers {

/// Where programs of the Codex CLI may lie.
struct CodexPlaces {
    QStringList standard; ///< absolute paths, tried in this order
    /// Other folders, of which the user is asked first; "*" stands for the folder of one version.
    QStringList others;
};

/// The usual places: others are those of package and version managers, then the folders of
/// `searchPath`, which is $PATH. `dataHome` is $XDG_DATA_HOME.
[[nodiscard]] CodexPlaces codexPlaces(const QString& home, const QString& dataHome,
                                      const QStringList& searchPath);

/// Which program is the Codex CLI: the one that the user chose, stored as "codexPath", or else the
/// first in the standard places.
class CodexProgram {
public:
    /// `defaults` must outlive it.
    CodexProgram(model::DefaultsStore& defaults, CodexPlaces places)
        : m_defaults(defaults), m_places(std::move(places)) {}

    /// The program to start, looked up anew by each call.
    [[nodiscard]] std::expected<QString, ProcessRunnerError> path() const;

    [[nodiscard]] const CodexPlaces& places() const { return m_places; }

    /// The programs in the other places, the newest version of each manager first. Starts none of
    /// them.
    [[nodiscard]] QStringList findElsewhere() const;

    /// The path that the user chose, as stored; empty if there is none.
    [[nodiscard]] QString chosen() const;

    /// Stores the choice; an empty path takes it back. The error is a sentence for the user.
    std::expected<void, QString> choose(const QString& path);

private:
    model::DefaultsStore& m_defaults;
    CodexPlaces m_places;
};

} // namespace tallyvane::providers
