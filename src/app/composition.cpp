#include "app/composition.h"

#include "core/fixtures.h"

#include <QtNetwork/QNetworkProxyFactory>

namespace tallyvane::app {

Composition::Composition(const Environment& environment)
    : store(environment.locations),
      defaults(model::DefaultsStore::openFirst(environment.locations.defaultsSuite(),
                                               environment.locations.standardDefaults())),
      processRunner(clock),
      codexClient(providers::codexCandidates(QString::fromStdString(environment.home.string())),
                  processRunner, clock),
      claudeClient({.credentialsFile = environment.home / ".claude" / ".credentials.json"}, secrets,
                   clock),
      tokenEstimator(environment.home),
      notifier(notificationCentre),
      model({.store = store,
             .defaults = defaults,
             .codexClient = codexClient,
             .claudeClient = claudeClient,
             .tokenEstimator = tokenEstimator,
             .notifier = notifier,
             .widgetCentre = widgetCentre,
             .clock = clock},
            environment.launchContext.isFixtureMode
                ? std::optional(core::fixtureSnapshot(clock.now(), QTimeZone::systemTimeZone()))
                : std::nullopt,
            environment.launchContext.isFixtureMode
                ? std::optional(core::fixtureHistory(clock.now(), QTimeZone::systemTimeZone()))
                : std::nullopt) {
    QNetworkProxyFactory::setUseSystemConfiguration(true);
}

} // namespace tallyvane::app
