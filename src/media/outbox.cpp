#include "media/outbox.h"

#include <utility>

#include <QMetaObject>

namespace quorvel::media {

void Outbox::post(std::function<void()> call) {
    const std::lock_guard lock(mutex_);
    if (receiver_ != nullptr) {
        QMetaObject::invokeMethod(receiver_, std::move(call), Qt::QueuedConnection);
    }
}

void Outbox::close() {
    const std::lock_guard lock(mutex_);
    receiver_ = nullptr;
}

}  // namespace quorvel::media
