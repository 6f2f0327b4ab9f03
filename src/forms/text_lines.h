/// Text that wraps in a width of its own, for controls that draw it themselves.
#pragma once

class QTextLayout;

namespace quorvel::forms {

/// Breaks the text of `layout` into lines of `width` pixels, between words where that is possible.
/// The height of all lines.
int breakLines(QTextLayout& layout, int width);

}  // namespace quorvel::forms
