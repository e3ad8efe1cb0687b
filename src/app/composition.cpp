#include "app/composition.h"

#include "core/fixtures.h"
#include "platform/linux/session_bus.h"

#include <algorithm>
#include <sys/resource.h>

namespace tallyvane::app {

namespace {

/// The memory of a program that crashed would hold the token. A limit of one byte forbids it to the
/// programs too that the kernel hands a core to, which take no notice of any other limit, 0
/// included (fs/coredump.c). The hard limit stays, so that the programs which this one starts can
/// raise theirs.
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
