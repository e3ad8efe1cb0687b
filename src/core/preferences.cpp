#include "core/preferences.h"

namespace tallyvane::core {

namespace {

const QString appearanceKey = QStringLiteral("appearance");
const QString onlyProviderKey = QStringLiteral("onlyProvider");
const QString windowSizeKey = QStringLiteral("windowSize");
const QString lowQuotaKey = QStringLiteral("warnsOfLowQuota");
const QString windowMaximizedKey = QStringLiteral("windowMaximized");
const QString hostNoticeKey = QStringLiteral("hidesStatusHostNotice");

} // namespace

model::AppAppearance loadAppearance(const model::DefaultsStore& defaults) {
    return model::fromRawValue<model::AppAppearance>(defaults.text(appearanceKey))
        .value_or(model::AppAppearance::system);
}

std::expected<void, model::FileError> saveAppearance(model::DefaultsStore& defaults,
                                                     model::AppAppearance appearance) {
    return defaults.setText(appearanceKey, model::rawValue(appearance));
}

std::optional<model::AIProvider> loadOnlyProvider(const model::DefaultsStore& defaults) {
    return model::fromRawValue<model::AIProvider>(defaults.text(onlyProviderKey));
}

std::expected<void, model::FileError> saveOnlyProvider(model::DefaultsStore& defaults,
                                                       std::optional<model::AIProvider> only) {
    return defaults.setText(onlyProviderKey, only ? QString(model::rawValue(*only)) : QString());
}

bool loadWarnsOfLowQuota(const model::DefaultsStore& defaults) {
    return defaults.flag(lowQuotaKey);
}

std::expected<void, model::FileError> saveWarnsOfLowQuota(model::DefaultsStore& defaults,
                                                          bool warns) {
    return defaults.setFlag(lowQuotaKey, warns);
}

std::vector<model::AIProvider> shownProviders(std::optional<model::AIProvider> only) {
    const auto& all = model::allCases<model::AIProvider>;
    return only ? std::vector{*only} : std::vector(all.begin(), all.end());
}

WindowShape loadWindowShape(const model::DefaultsStore& defaults) {
    const QString text = defaults.text(windowSizeKey);
    return {.size = {text.section(u'x', 0, 0).toInt(), text.section(u'x', 1).toInt()},
            .isMaximized = defaults.flag(windowMaximizedKey)};
}

void saveWindowShape(model::DefaultsStore& defaults, const WindowShape& shape) {
    (void)defaults.setText(
        windowSizeKey, QStringLiteral("%1x%2").arg(shape.size.width()).arg(shape.size.height()));
    (void)defaults.setFlag(windowMaximizedKey, shape.isMaximized);
}

bool hidesStatusHostNotice(const model::DefaultsStore& defaults) {
    return defaults.flag(hostNoticeKey);
}

void hideStatusHostNotice(model::DefaultsStore& defaults) {
    (void)defaults.setFlag(hostNoticeKey, true);
}

} // namespace tallyvane::core
