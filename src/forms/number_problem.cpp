#include "forms/number_problem.h"

#include "store/numbers.h"

namespace quorvel::forms {

QString numberProblem(const QString& typed, int least) {
    using Limits = std::numeric_limits<std::int16_t>;
    constexpr int kMostShown = 40;
    const int number = store::valInt(typed.toStdString());
    if (number >= Limits::min() && number <= Limits::max()) {
        return {};
    }
    return QStringLiteral(
               "The number %1 cannot be saved.\n\nNumbers can be from %2 to %3.  Please enter "
               "another one.")
        .arg(typed.left(kMostShown), QString::number(least), QString::number(Limits::max()));
}

}  // namespace quorvel::forms
