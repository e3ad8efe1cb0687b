#include "app/composition.h"

#include "core/fixtures.h"
#include "platform/linux/session_bus.h"

#include <QtNetwork/QNetworkProxyFactory>

#include <sys/resource.h>

namespace tallyvane::app {

namespace {

/// The memory of a program that crashed would hold the token. The hard limit stays, so that the
/// programs which this one starts can raise theirs.
void forbidCoreFiles() {
    rlimit limit{};
    ::getrlimit(RLIMIT_CORE, &limit);
    limit.rlim_cur = 0;
    ::setrlimit(RLIMIT_CORE, &limit);
}

} // namespace

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
    forbidCoreFiles();
    QNetworkProxyFactory::setUseSystemConfiguration(true);
}

Composition::~Composition() {
    platform::flushSessionBus();
}

} // namespace tallyvane::app
