#include "forms/text_lines.h"

#include <algorithm>
#include <cmath>

#include <QTextLayout>
#include <QTextOption>

namespace quorvel::forms {

int breakLines(QTextLayout& layout, int width) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    qreal top = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(width, 1));
        line.setPosition({0, top});
        top += line.height();
    }
    layout.endLayout();
    return static_cast<int>(std::ceil(top));
}

}  // namespace quorvel::forms
