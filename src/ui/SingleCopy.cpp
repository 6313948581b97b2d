#include "ui/SingleCopy.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalSocket>

namespace veyrant {

namespace {

constexpr int ReachMilliseconds = 2000;

QString QtPath(const std::filesystem::path& path) {
    return QString::fromStdString(path.string());
}

// The session's private run-time folder where there is one; else the system's temporary
// folder, with the socket open to this account alone. The name stands for the folder, so that
// copies on other folders never meet.
QString ServerName(const std::filesystem::path& root) {
    const QByteArray folder = QtPath(root).toUtf8();
    const QString name =
        QStringLiteral("veyrant-sagrel-") +
        QString::fromLatin1(
            QCryptographicHash::hash(folder, QCryptographicHash::Sha256).toHex().left(24));
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return runtime.startsWith(QLatin1Char('/')) ? runtime + QLatin1Char('/') + name : name;
}

} // namespace

SingleCopy::SingleCopy(const std::filesystem::path& root)
    : serverName_(ServerName(root)), lock_(QtPath(root / ".lock")) {
    QDir().mkpath(QtPath(root));
    // Only the process that wrote a lock can hold it; its death frees it, whatever its age.
    lock_.setStaleLockTime(0);
    if (!lock_.tryLock(0)) {
        first_ = lock_.error() != QLockFile::LockFailedError;
        if (!first_) {
            return;
        }
    }
    connect(&server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* caller = server_.nextPendingConnection()) {
            caller->disconnectFromServer();
            caller->deleteLater();
            if (OnCalled) {
                OnCalled();
            }
        }
    });
    server_.setSocketOptions(QLocalServer::UserAccessOption);
    // A socket a crashed copy left would refuse the name.
    QLocalServer::removeServer(serverName_);
    server_.listen(serverName_);
}

bool SingleCopy::CallFirstForward() const {
    QLocalSocket socket;
    socket.connectToServer(serverName_);
    if (!socket.waitForConnected(ReachMilliseconds)) {
        return false;
    }
    // The first copy answers by closing the line once it has heard.
    if (socket.state() == QLocalSocket::ConnectedState) {
        socket.waitForDisconnected(ReachMilliseconds);
    }
    return true;
}

} // namespace veyrant
