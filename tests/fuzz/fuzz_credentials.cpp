#include "providers/claude/claude_credentials.h"

#include <cstdlib>

using namespace tallyvane;

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const auto record =
        providers::parseSignInRecord(QByteArray(data, static_cast<qsizetype>(size)));
    // What goes into a header must not end it.
    if (record && (record->accessToken.isEmpty() || record->accessToken.contains('\n') ||
                   record->accessToken.contains('\r') || record->accessToken.contains('\0'))) {
        std::abort();
    }
    return 0;
}
