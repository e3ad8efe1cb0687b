// Whatever others write is readable afterwards, and stays the same from then on.

#include "model/foreign_text.h"
#include "support/readable.h"

#include <cstdlib>
#include <cstring>

using namespace tallyvane;

/// The first byte tells how long the text may be and whether the rest is UTF-8 or UTF-16.
extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    if (size == 0) {
        return 0;
    }
    const auto first = static_cast<unsigned char>(data[0]);
    const qsizetype maximumLength = 8 + first / 2;
    const QByteArrayView bytes(data + 1, static_cast<qsizetype>(size) - 1);
    QString foreign;
    if (first % 2 == 0) {
        foreign = QString::fromUtf8(bytes);
    } else {
        foreign.resize(bytes.size() / 2);
        std::memcpy(foreign.data(), bytes.data(), static_cast<std::size_t>(foreign.size()) * 2);
    }

    const QString readable = model::readableText(foreign, maximumLength);
    if (!tests::isReadable(readable, maximumLength) ||
        model::readableText(readable, maximumLength) != readable ||
        !tests::isReadableLine(model::readableLine(foreign, maximumLength), maximumLength)) {
        std::abort();
    }
    const QString masked = model::maskedAddresses(readable);
    if (model::maskedAddresses(masked) != masked) {
        std::abort();
    }
    return 0;
}
