#include "history/usage_history.h"

#include <QtCore/QElapsedTimer>

#include <cstdio>

using namespace tallyvane;

/// Prints the milliseconds that reading a full history takes: 90 days of both providers.
int main() {
    history::UsageHistory history;
    for (int day = 0; day < 90; ++day) {
        for (const model::AIProvider provider : model::allCases<model::AIProvider>) {
            history.points.push_back({.date = model::Timestamp{} + std::chrono::days{20000 + day},
                                      .provider = provider,
                                      .estimatedQuotaConsumed = day * 0.7,
                                      .estimatedLocalTokens = day * 123'456});
        }
    }
    const QByteArray json = history::encodeHistory(history).value();
    constexpr int rounds = 200;
    QElapsedTimer timer;
    timer.start();
    for (int round = 0; round < rounds; ++round) {
        if (history::decodeHistory(json) != history) {
            return 1;
        }
    }
    std::printf("%.3f\n", static_cast<double>(timer.nsecsElapsed()) / 1e6 / rounds);
    return 0;
}
