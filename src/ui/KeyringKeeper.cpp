#include "ui/KeyringKeeper.h"

#include "core/SecretKey.h"
#include "ui/QtText.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QEventLoop>
#include <qt6keychain/keychain.h>

namespace veyrant {

namespace {

const QString Service = QStringLiteral("veyrant-sagrel");
const QString Entry = QStringLiteral("Library passphrase");
const QString SecretService = QStringLiteral("org.freedesktop.secrets");

// The keyring answers through the event loop; the start and the Lock window wait for it.
void RunToEnd(QKeychain::Job& job) {
    job.setAutoDelete(false);
    job.setKey(Entry);
    QEventLoop wait;
    QObject::connect(&job, &QKeychain::Job::finished, &wait, &QEventLoop::quit);
    job.start();
    wait.exec();
}

} // namespace

bool KeyringKeeper::Available() {
    auto* bus = QDBusConnection::sessionBus().interface();
    if (bus == nullptr) {
        return false;
    }
    const auto registered = bus->isServiceRegistered(SecretService);
    if (registered.isValid() && registered.value()) {
        return true;
    }
    const auto activatable = bus->activatableServiceNames();
    return activatable.isValid() && activatable.value().contains(SecretService);
}

std::optional<std::string> KeyringKeeper::Recall() {
    QKeychain::ReadPasswordJob job(Service);
    RunToEnd(job);
    if (job.error() != QKeychain::NoError) {
        return std::nullopt;
    }
    // A passphrase typed in the program has a Windows-1252 code for every character.
    return Utf16ToCp1252(job.textData().toStdU16String());
}

bool KeyringKeeper::Keep(const std::string& passphrase) {
    QKeychain::WritePasswordJob job(Service);
    job.setTextData(ToQt(passphrase));
    RunToEnd(job);
    return job.error() == QKeychain::NoError;
}

void KeyringKeeper::Forget() {
    QKeychain::DeletePasswordJob job(Service);
    RunToEnd(job);
}

} // namespace veyrant
