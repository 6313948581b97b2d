#include "ui/WindowRoles.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace veyrant {

namespace {

// Only the plain top-level widgets: Qt's own windows, dialogs and message boxes keep the roles
// Qt gives them.
QAccessibleInterface* WindowRole(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr || !widget->isWindow() || className != QLatin1String("QWidget")) {
        return nullptr;
    }
    return new QAccessibleWidget(widget, QAccessible::Window);
}

} // namespace

void InstallWindowRoles() {
    static bool installed = false;
    if (!installed) {
        QAccessible::installFactory(WindowRole);
        installed = true;
    }
}

} // namespace veyrant
