#include "fuzz/fuzz_target.h"
#include "model/ini_text.h"

/// Setting a value changes nothing else in a settings file, and values round-trip.
void tallyvane::fuzz::check(const QByteArray& input) {
    require(model::decodedIniBytes(model::encodedIniBytes(input)) == input);
    const QString text = QString::fromUtf8(input);
    require(model::decodedIniText(model::encodedIniText(text)) == text);
    auto ini = model::IniText::parse(input);
    if (!ini) {
        return;
    }
    require(ini->file() == input);
    if (const auto before = ini->value("appearance")) {
        (void)model::decodedIniText(*before);
        (void)model::decodedIniBytes(*before);
    }
    const auto other = ini->value("other");
    ini->setValue("appearance", "new");
    const auto again = model::IniText::parse(ini->file());
    require(again && again->value("appearance") == "new" && again->value("other") == other);
}
