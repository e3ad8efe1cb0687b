#include "fuzz/fuzz_target.h"
#include "model/foreign_text.h"
#include "support/readable.h"

#include <cstring>

/// Any text becomes readable, and is then left unchanged. The first byte selects the maximum length
/// and whether the rest is UTF-8 or UTF-16.
void tallyvane::fuzz::check(const QByteArray& input) {
    if (input.isEmpty()) {
        return;
    }
    const auto first = static_cast<unsigned char>(input[0]);
    const qsizetype maximumLength = 8 + first / 2;
    const QByteArrayView bytes = QByteArrayView(input).sliced(1);
    QString foreign;
    if (first % 2 == 0) {
        foreign = QString::fromUtf8(bytes);
    } else {
        foreign.resize(bytes.size() / 2);
        std::memcpy(foreign.data(), bytes.data(), static_cast<std::size_t>(foreign.size()) * 2);
    }

    const QString readable = model::readableText(foreign, maximumLength);
    require(tests::isReadable(readable, maximumLength));
    require(model::readableText(readable, maximumLength) == readable);
    require(tests::isReadableLine(model::readableLine(foreign, maximumLength), maximumLength));
    const QString masked = model::maskedAddresses(readable);
    require(model::maskedAddresses(masked) == masked);
}
