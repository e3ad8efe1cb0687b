#include "app/composition.h"

#include "core/fixtures.h"
#include "platform/linux/session_bus.h"

#include <algorithm>
#include <sys/resource.h>

namespace tallyvane::app {

namespace {

/// A core file would contain the token. The kernel ignores every other limit, 0 included, when it
/// pipes the core to a program; a limit of 1 stops that too (fs/coredump.c). The hard limit stays,
/// so that child programs can raise theirs.
void forbidCoreFiles() {
    rlimit limit{};
    ::getrlimit(RLIMIT_CORE, &limit);
    limit.rlim_cur = std::min<rlim_t>(1, limit.rlim_max);
    ::setrlimit(RLIMIT_CORE, &limit);
}

} // namespace

Composition::Composition(const Environment& environment)
    : notificationCentre(environment.searchPath),
      store(environment.locations),
      defaults(model::DefaultsStore::openFirst(environment.locations.defaultsSuite(),
                                               environment.locations.standardDefaults())),
      processRunner(clock),
      codexClient(providers::codexCandidates(QString::fromStdString(environment.home.string())),
                  processRunner, clock),
      claudeClient({.credentialsFile = environment.home / ".claude" / ".credentials.json",
                    .network = environment.network},
                   secrets, clock),
      tokenEstimator(environment.home),
      notifier(notificationCentre),
      model({.store = store,
             .defaults = defaults,
             .quotaClients = {codexClient, claudeClient},
             .tokenEstimator = tokenEstimator,
             .notifier = notifier,
             .widgetCentre = widgetCentre,
             .clock = clock,
             .zone = environment.zone},
            environment.launchContext.isFixtureMode
                ? std::optional(core::fixtureSnapshot(clock.now(), environment.zone))
                : std::nullopt,
            environment.launchContext.isFixtureMode
                ? std::optional(core::fixtureHistory(clock.now(), environment.zone))
                : std::nullopt) {
    forbidCoreFiles();
}

Composition::~Composition() {
    platform::flushSessionBus();
}

} // namespace tallyvane::app
