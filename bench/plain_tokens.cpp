// Counts the tokens in the given session logs by parsing every line, as the simplest program would.

#include "support/plain_session_log.h"

#include <QtCore/QFile>

#include <cstdio>

int main(int argc, char** argv) {
    using namespace tallyvane;
    history::TokenSum sum;
    for (int i = 1; i < argc; ++i) {
        QFile file(QString::fromLocal8Bit(argv[i]));
        if (!file.open(QIODevice::ReadOnly)) {
            return 1;
        }
        const auto provider = file.fileName().contains(QLatin1StringView("/.codex/"))
                                  ? model::AIProvider::codex
                                  : model::AIProvider::claude;
        sum.add(tests::plainLogTokens(provider, file.readAll()).value_or(history::TokenSum{}));
    }
    return std::printf("%lld\n", static_cast<long long>(sum.value)) > 0 ? 0 : 1;
}
