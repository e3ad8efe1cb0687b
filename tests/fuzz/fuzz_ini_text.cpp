// A settings file stays as it is but for the value that was set, which reads back.

#include "model/ini_text.h"

#include <cstdlib>

using namespace tallyvane::model;

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const char* data, std::size_t size) {
    const QByteArray file(data, static_cast<qsizetype>(size));
    require(decodedIniBytes(encodedIniBytes(file)) == file);
    const QString text = QString::fromUtf8(file);
    require(decodedIniText(encodedIniText(text)) == text);
    auto ini = IniText::parse(file);
    if (!ini) {
        return 0;
    }
    require(ini->file() == file);
    const auto before = ini->value("appearance");
    if (before) {
        (void)decodedIniText(*before);
        (void)decodedIniBytes(*before);
    }
    const auto other = ini->value("other");
    ini->setValue("appearance", "new");
    const auto again = IniText::parse(ini->file());
    require(again && again->value("appearance") == "new" && again->value("other") == other);
    return 0;
}
