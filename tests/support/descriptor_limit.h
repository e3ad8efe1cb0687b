#pragma once

#include <sys/resource.h>

namespace tallyvane::tests {

/// While it lives, this process opens no descriptor with this number or a higher one.
class DescriptorLimit {
public:
    explicit DescriptorLimit(rlim_t limit) {
        ::getrlimit(RLIMIT_NOFILE, &m_before);
        const rlimit lower{.rlim_cur = limit, .rlim_max = m_before.rlim_max};
        ::setrlimit(RLIMIT_NOFILE, &lower);
    }
    ~DescriptorLimit() { ::setrlimit(RLIMIT_NOFILE, &m_before); }
    DescriptorLimit(const DescriptorLimit&) = delete;
    DescriptorLimit& operator=(const DescriptorLimit&) = delete;

private:
    rlimit m_before{};
};

} // namespace tallyvane::tests
