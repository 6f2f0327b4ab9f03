#include "forms/events.h"

#include <QCoreApplication>
#include <QScopeGuard>
#include <QVariant>

namespace quorvel::forms {

namespace {

/// The application itself keeps the count of the routines that are within each other.
constexpr const char* kDepth = "quorvelRoutines";

void addDepth(int step) {
    if (QCoreApplication* application = QCoreApplication::instance()) {
        application->setProperty(kDepth, application->property(kDepth).toInt() + step);
    }
}

}  // namespace

void letEventsRun() {
    addDepth(1);
    const auto after = qScopeGuard([] { addDepth(-1); });
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool isWithinRoutine() {
    const QCoreApplication* application = QCoreApplication::instance();
    return application != nullptr && application->property(kDepth).toInt() > 0;
}

}  // namespace quorvel::forms
