#include "fuzz/fuzz_target.h"
#include "providers/claude/claude_credentials.h"

/// A token must not end the header that it goes into.
void tallyvane::fuzz::check(const QByteArray& input) {
    if (const auto record = providers::parseSignInRecord(input)) {
        const auto& token = record->accessToken;
        require(!token.isEmpty() && !token.contains('\n') && !token.contains('\r') &&
                !token.contains('\0'));
    }
}
