#include "platform/qt/QtMotionPortal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QFile>
#include <QMap>
#include <QVariantMap>
#include <utility>

namespace skylob {

namespace {

constexpr QLatin1String kAppearance{"org.freedesktop.appearance"},
    kInterface{"org.gnome.desktop.interface"}, kConnection{"motion"};

/// Where there is no bus the library would start one.
bool hasSessionBus() {
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QStringLiteral("/bus"));
}

/// For all there is to know about either namespace: one question is enough.
QDBusMessage question() {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("ReadAll"));
    message << QStringList{kAppearance, kInterface};
    return message;
}

MotionSettings settingsIn(const QDBusMessage& reply) {
    const auto namespaces = qdbus_cast<QMap<QString, QVariantMap>>(reply.arguments().value(0));
    const QVariant reduced = namespaces[kAppearance][QStringLiteral("reduced-motion")];
    const QVariant animations = namespaces[kInterface][QStringLiteral("enable-animations")];
    MotionSettings settings;
    if (reduced.typeId() == QMetaType::UInt) settings.reducedMotion = reduced.toUInt();
    if (animations.typeId() == QMetaType::Bool) settings.enableAnimations = animations.toBool();
    return settings;
}

}  // namespace

void askForMotion(QObject* context, std::function<void(Motion)> answer) {
    if (!hasSessionBus()) return;
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, kConnection);
    auto* call = new QDBusPendingCallWatcher{bus.asyncCall(question()), context};
    QObject::connect(call, &QDBusPendingCallWatcher::finished, context,
                     [answer = std::move(answer), call] {
                         const QDBusMessage reply = call->reply();
                         call->deleteLater();
                         QDBusConnection::disconnectFromBus(kConnection);
                         if (reply.type() == QDBusMessage::ReplyMessage)
                             answer(motionWanted(settingsIn(reply)));
                     });
}

}  // namespace skylob
