#include "forms/events.h"

#include <QCoreApplication>

namespace quorvel::forms {

void letEventsRun() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace quorvel::forms
