#include "groups/number_box.h"

#include <utility>

#include <QFocusEvent>
#include <QKeyEvent>
#include <QRegularExpressionValidator>

#include "forms/number_problem.h"
#include "store/numbers.h"

namespace quorvel::groups {
namespace {

constexpr int kLowestFlag = 1;
constexpr int kHighestFlag = 255;

}  // namespace

NumberBox::NumberBox(NumberRule rule, std::function<void()> beep, QWidget* parent)
    : QLineEdit(parent), rule_(rule), beep_(std::move(beep)) {
    const bool minus = rule == NumberRule::value;
    // Text that comes another way than by a key, such as by pasting.
    setValidator(new QRegularExpressionValidator(
        QRegularExpression(minus ? QStringLiteral("[-0-9]*") : QStringLiteral("[0-9]*")), this));
    connect(this, &QLineEdit::inputRejected, this, [this] { beep_(); });
    connect(this, &QLineEdit::textEdited, this, [this] {
        if (!takingAway_) {
            Q_EMIT typed();
        }
    });
    if (rule == NumberRule::flag) {
        setToolTip(QStringLiteral("(1-255)"));
    }
    constexpr int kDigits = 6;
    setMaximumWidth(fontMetrics().horizontalAdvance(QLatin1Char('0')) * kDigits + 20);
    setMinimumWidth(maximumWidth());
}

int NumberBox::number() const {
    return store::valInt(text().toStdString());
}

QString NumberBox::problem() const {
    return forms::numberProblem(text());
}

void NumberBox::mend() {
    if (rule_ == NumberRule::flag && (number() < kLowestFlag || number() > kHighestFlag)) {
        setText(QString::number(kLowestFlag));
        beep_();
    }
}

void NumberBox::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    const bool character = text.size() == 1 && text.front().isPrint() &&
                           !event->modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier);
    if (character) {
        const char key = text.front().toLatin1();
        const bool taken = (key >= '0' && key <= '9') || (key == '-' && rule_ == NumberRule::value);
        if (!taken) {
            beep_();
            event->accept();
            return;
        }
    }
    takingAway_ = !character && !event->matches(QKeySequence::Paste);
    QLineEdit::keyPressEvent(event);
    takingAway_ = false;
}

void NumberBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    // The box keeps the author's attention while a menu or another program has the keyboard.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        mend();
    }
}

}  // namespace quorvel::groups
