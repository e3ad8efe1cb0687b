#include "platform/linux/secret_service_store.h"

#include "platform/linux/spare_resources.h"

#include <QCoro/QCoroFuture>
#include <QtCore/QPromise>
#include <QtCore/QTimer>
#include <libsecret/secret.h>

#include <memory>
#include <system_error>
#include <thread>

namespace tallyvane::platform {

namespace {

/// GLib aborts if it lacks these. More than one lookup was seen to take, since others run
/// meanwhile.
constexpr SpareResources needed{.descriptors = 16, .threads = 3};

using Kind = SecretStoreError::Kind;

std::unexpected<SecretStoreError> no(Kind kind, const QString& reason = {}) {
    return std::unexpected(SecretStoreError{kind, reason});
}

std::unexpected<SecretStoreError> locked() {
    return no(Kind::locked, QString::fromLatin1(QT_TRANSLATE_NOOP("Message", "it is locked")));
}

/// One lookup, shared by the waiting thread and the one that reads the keyring.
struct Lookup {
    Lookup() { promise.start(); }
    ~Lookup() { g_object_unref(cancellable); }
    Lookup(const Lookup&) = delete;
    Lookup& operator=(const Lookup&) = delete;

    /// Only the first answer counts.
    void answer(SecretLookup result) {
        promise.addResult(std::move(result));
        promise.finish();
    }

    GCancellable* cancellable = g_cancellable_new();
    QPromise<SecretLookup> promise;
};

/// Some keyrings name no items while they are locked.
bool isLocked(SecretService* keyring, GCancellable* cancellable) {
    g_autoptr(SecretCollection) standard = secret_collection_for_alias_sync(
        keyring, SECRET_COLLECTION_DEFAULT, SECRET_COLLECTION_NONE, cancellable, nullptr);
    return standard != nullptr && secret_collection_get_locked(standard);
}

SecretLookup readSecret(const char* service, GCancellable* cancellable) {
    static const SecretSchema schema{.name = "org.corvelle.Tallyvane.Lookup",
                                     .flags = SECRET_SCHEMA_DONT_MATCH_NAME,
                                     .attributes = {{"service", SECRET_SCHEMA_ATTRIBUTE_STRING}}};
    g_autoptr(GHashTable) attributes =
        secret_attributes_build(&schema, "service", service, nullptr);
    g_autoptr(GDBusConnection) bus = g_bus_get_sync(G_BUS_TYPE_SESSION, cancellable, nullptr);
    if (bus == nullptr) {
        return no(Kind::absent);
    }
    // By default the program would exit with the bus.
    g_dbus_connection_set_exit_on_close(bus, FALSE);
    // The shared instance of libsecret would outlive its bus.
    g_autoptr(SecretService) keyring = secret_service_open_sync(
        SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_NONE, cancellable, nullptr);
    if (keyring == nullptr) {
        return no(Kind::absent);
    }
    const auto flags =
        static_cast<SecretSearchFlags>(SECRET_SEARCH_ALL | SECRET_SEARCH_LOAD_SECRETS);
    g_autoptr(GError) error = nullptr;
    g_autolist(SecretItem) items =
        secret_service_search_sync(keyring, &schema, attributes, flags, cancellable, &error);
    if (error != nullptr) {
        return no(Kind::absent);
    }
    bool isAnyLocked = items == nullptr && isLocked(keyring, cancellable);
    for (const GList* entry = items; entry != nullptr; entry = entry->next) {
        auto* item = static_cast<SecretItem*>(entry->data);
        isAnyLocked = isAnyLocked || secret_item_get_locked(item);
        g_autoptr(SecretValue) value =
            secret_item_get_locked(item) ? nullptr : secret_item_get_secret(item);
        if (value != nullptr) {
            gsize length = 0;
            const char* bytes = secret_value_get(value, &length);
            return Secret{QByteArray(bytes, static_cast<qsizetype>(length))};
        }
    }
    return isAnyLocked ? SecretLookup(locked()) : no(Kind::noItem);
}

/// Blocks until the service has answered or `cancellable` is cancelled, sometimes longer.
SecretLookup findSecret(const QByteArray& service, GCancellable* cancellable) {
    // Makes callbacks run in this thread rather than the main one.
    g_autoptr(GMainContext) context = g_main_context_new();
    g_autoptr(GMainContextPusher) pusher = g_main_context_pusher_new(context);
    auto secret = readSecret(service.constData(), cancellable);
    while (g_main_context_iteration(context, FALSE)) { // frees leftovers of the calls
    }
    return secret;
}

} // namespace

QCoro::Task<SecretLookup> SecretServiceStore::lookup(QString service) {
    if (const auto spare = trySpare(needed); !spare) {
        co_return no(Kind::failed, spare.error());
    }
    const auto lookup = std::make_shared<Lookup>();
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [lookup] {
        lookup->answer(no(Kind::failed, QString::fromLatin1(QT_TRANSLATE_NOOP(
                                            "Message", "it did not answer in time"))));
        g_cancellable_cancel(lookup->cancellable);
    });
    timer.setSingleShot(true);
    timer.start(m_patience);
    // Detached: some calls cannot be cancelled (connecting to the bus), and a pool's thread would
    // delay the end of the program.
    try {
        std::thread([lookup, name = service.toUtf8()] {
            lookup->answer(findSecret(name, lookup->cancellable));
        }).detach();
    } catch (const std::system_error& error) {
        lookup->answer(no(Kind::failed, qt_error_string(error.code().value())));
    }
    const QFuture<SecretLookup> result = lookup->promise.future();
    co_return co_await result;
}

} // namespace tallyvane::platform
