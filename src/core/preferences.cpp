#include "core/preferences.h"

namespace tallyvane::core {

namespace {

const QString appearanceKey = QStringLiteral("appearance");

} // namespace

model::AppAppearance loadAppearance(const model::DefaultsStore& defaults) {
    return model::fromRawValue<model::AppAppearance>(defaults.text(appearanceKey))
        .value_or(model::AppAppearance::system);
}

std::expected<void, model::FileError> saveAppearance(model::DefaultsStore& defaults,
                                                     model::AppAppearance appearance) {
    return defaults.setText(appearanceKey, model::rawValue(appearance));
}

} // namespace tallyvane::core
