#include "platform/linux/spare_resources.h"

#include "model/file_descriptor.h"

#include <QtCore/QScopeGuard>

#include <cerrno>
#include <latch>
#include <list>
#include <system_error>
#include <thread>

namespace tallyvane::platform {

std::expected<void, QString> trySpare(SpareResources wanted) {
    std::list<model::FileDescriptor> descriptors;
    for (int i = 0; i < wanted.descriptors; ++i) {
        if (descriptors.emplace_back("/", O_PATH).get() < 0) {
            return std::unexpected(qt_error_string(errno));
        }
    }
    std::latch end(1);
    std::list<std::jthread> threads;
    const auto release = qScopeGuard([&end] { end.count_down(); });
    try {
        for (int i = 0; i < wanted.threads; ++i) {
            threads.emplace_back([&end] { end.wait(); });
        }
    } catch (const std::system_error& error) {
        return std::unexpected(qt_error_string(error.code().value()));
    }
    return {};
}

} // namespace tallyvane::platform
