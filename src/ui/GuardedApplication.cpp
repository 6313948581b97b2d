#include "ui/GuardedApplication.h"

#include "core/CaughtError.h"

#include <utility>

namespace veyrant {

GuardedApplication::GuardedApplication(int& argc, char** argv,
                                       std::function<void(int)> reportSystemError)
    : QApplication(argc, argv), reportSystemError_(std::move(reportSystemError)) {}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        reportSystemError_(CaughtErrorNumber());
        return true;
    }
}

} // namespace veyrant
