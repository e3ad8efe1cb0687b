#pragma once

#include "providers/process_runner_error.h"
#include "providers/quota_client.h"

#include <variant>

namespace tallyvane::providers {

/// The reply is not of the expected shape.
struct CorruptReply {
    bool operator==(const CorruptReply&) const = default;
};

/// Why the Codex CLI gave no quota. A `failed` holds the server's words, which may name the user's
/// account: for the screen, never to be stored.
using CodexError = std::variant<ProcessRunnerError, CorruptReply>;

/// As the user gets to know it: in the program's error line.
[[nodiscard]] QuotaFailure quotaFailure(const CodexError& error);

} // namespace tallyvane::providers
