#include "app/composition.h"

#include "core/fixtures.h"
#include "platform/linux/session_bus.h"

#include <QtCore/QFile>
#include <QtCore/QProcessEnvironment>

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

providers::CodexPlaces codexPlaces(const Environment& environment) {
    return providers::codexPlaces(QFile(environment.home).fileName(),
                                  QFile(environment.locations.dataHome).fileName(),
                                  environment.searchPath);
}

platform::AutostartPlaces autostartPlaces(const Environment& environment,
                                          const std::filesystem::path& program) {
    platform::AutostartPlaces places{.userDirectory =
                                         environment.locations.configHome / "autostart",
                                     .program = program,
                                     .searchPath = environment.searchPath};
    for (const std::filesystem::path& directory : environment.systemConfigDirectories) {
        places.systemDirectories.push_back(directory / "autostart");
    }
    return places;
}

void leaveSilentSessionBus() {
    constexpr auto variable = "DBUS_SESSION_BUS_ADDRESS";
    if (platform::isSilentBus(qgetenv(variable))) {
        qputenv(variable, "unix:path=/nonexistent");
    }
}

std::filesystem::path claudeCredentialsFile(const Environment& environment) {
    return environment.home / ".claude" / ".credentials.json";
}

QuotaSources::QuotaSources(const Environment& environment)
    : defaults(openDefaults(environment)),
      codexProgram(defaults, codexPlaces(environment)),
      processRunner(clock, QProcessEnvironment::systemEnvironment()),
      codexClient(codexProgram, processRunner, clock),
      claude(
          {.credentialsFile = claudeCredentialsFile(environment), .network = environment.network},
          clock) {
    forbidCoreFiles();
}

Composition::Composition(const Environment& environment)
    : QuotaSources(environment),
      notificationCentre(environment.searchPath, environment.locations.configHome),
      store(environment.locations),
      tokenEstimator(environment.home),
      notifier(notificationCentre),
      model({.store = store,
             .defaults = defaults,
             .quotaClients = {codexClient, claude},
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
                : std::nullopt) {}

Composition::~Composition() {
    platform::flushSessionBus();
}

} // namespace tallyvane::app
