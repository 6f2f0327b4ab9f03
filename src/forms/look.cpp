#include "forms/look.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolTip>

#include "forms/legible.h"
#include "forms/manners.h"

// Resources of a static library are not found until they are named; the macro wants the global
// namespace.
static void initAssets() {
    Q_INIT_RESOURCE(assets);
}

namespace quorvel::forms {
namespace {

struct Tones {
    QColor window, text, base, alternate, button, highlight, highlighted, link, visited;
    // Of what is off: its text, a button, the filled half of a slider, quieter than its handle.
    QColor disabled, flush, filled;
};

QPalette paletteOf(const Tones& tones) {
    QPalette palette(tones.button, tones.window);
    palette.setColor(QPalette::WindowText, tones.text);
    palette.setColor(QPalette::Text, tones.text);
    palette.setColor(QPalette::ButtonText, tones.text);
    palette.setColor(QPalette::Base, tones.base);
    palette.setColor(QPalette::AlternateBase, tones.alternate);
    palette.setColor(QPalette::ToolTipBase, tones.base);
    palette.setColor(QPalette::ToolTipText, tones.text);
    palette.setColor(QPalette::Highlight, tones.highlight);
    palette.setColor(QPalette::HighlightedText, tones.highlighted);
    palette.setColor(QPalette::Link, tones.link);
    palette.setColor(QPalette::LinkVisited, tones.visited);
    palette.setColor(QPalette::PlaceholderText, tones.disabled);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, tones.disabled);
    }
    palette.setColor(QPalette::Disabled, QPalette::Button, tones.flush);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, tones.filled);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, tones.text);
    return palette;
}

QPalette lightPalette() {
    return paletteOf({.window = QColor(0xf3f3f1),
                      .text = QColor(0x24282e),
                      .base = QColor(0xffffff),
                      .alternate = QColor(0xf0f2f4),
                      .button = QColor(0xe9eaea),
                      .highlight = QColor(0x1a7d73),
                      .highlighted = QColor(0xffffff),
                      .link = QColor(0x14756b),
                      .visited = QColor(0x5f5596),
                      .disabled = QColor(0x5c6269),
                      .flush = QColor(0xefefee),
                      .filled = QColor(0xb9bdc2)});
}

QPalette darkPalette() {
    return paletteOf({.window = QColor(0x383b40),
                      .text = QColor(0xe9ebed),
                      .base = QColor(0x25272a),
                      .alternate = QColor(0x2c2f33),
                      .button = QColor(0x464a50),
                      .highlight = QColor(0x1a7d73),
                      .highlighted = QColor(0xffffff),
                      .link = QColor(0x4cc4b8),
                      .visited = QColor(0xc0b0e6),
                      .disabled = QColor(0xa9aeb5),
                      .flush = QColor(0x2b2d31),
                      .filled = QColor(0x5c6168)});
}

/// The base style draws the edges of boxes and circles darker than the window, where a dark window
/// swallows them, and a text that is off a second time in white, which is no shine on a dark menu.
class OutlinedStyle : public QProxyStyle {
  public:
    OutlinedStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

    using QProxyStyle::polish;
    void polish(QWidget* widget) override {
        QProxyStyle::polish(widget);
        manners_.teach(*widget);
    }

    /// Boxes and dialogs have the buttons of all other windows: without pictures, what goes on at
    /// the left of what goes back.
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        switch (hint) {
            case SH_EtchDisabledText:
            case SH_DialogButtonBox_ButtonsHaveIcons:
            case SH_TabBar_AllowWheelScrolling:  // a wheel in passing turns no page
                return 0;
            case SH_DialogButtonLayout:
                return QDialogButtonBox::WinLayout;
            case SH_Menu_AllowActiveAndDisabled:
                return 1;  // an entry that is off can say why
            default:
                return QProxyStyle::styleHint(hint, option, widget, result);
        }
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool circle = element == PE_IndicatorRadioButton;
        if ((!circle && element != PE_IndicatorCheckBox) ||
            option->palette.color(QPalette::Window).lightness() > 127) {
            return;
        }
        QColor edge = option->palette.color(QPalette::WindowText);
        edge.setAlphaF((option->state & State_Enabled) != 0 ? 0.55F : 0.3F);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(edge);
        painter->setBrush(Qt::NoBrush);
        const QRectF frame = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        if (circle) {
            painter->drawEllipse(frame);
        } else {
            painter->drawRoundedRect(frame, 2, 2);
        }
        painter->restore();
    }

  private:
    Manners manners_;
};

QPixmap faded(const QPixmap& pixmap) {
    constexpr double kOpacity = 0.35;
    QPixmap result(pixmap.size());
    result.setDevicePixelRatio(pixmap.devicePixelRatio());
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setOpacity(kOpacity);
    painter.drawImage(0, 0, pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied));
    return result;
}

}  // namespace

Look lookFromEnvironment() {
    const QString wanted = qEnvironmentVariable("QUORVEL_LOOK").toLower();
    if (wanted == QStringLiteral("light")) {
        return Look::light;
    }
    return wanted == QStringLiteral("dark") ? Look::dark : Look::desktop;
}

void applyLook(QApplication& application, Look look) {
    initAssets();
    QApplication::setStyle(new OutlinedStyle);
    const QPalette palette = look == Look::light  ? lightPalette()
                             : look == Look::dark ? darkPalette()
                                                  : legible(QApplication::palette());
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    application.setWindowIcon(icon(QStringLiteral("quorvel")));
}

QIcon icon(const QString& name) {
    initAssets();
    const QString file = QStringLiteral(":/icons/%1.svg").arg(name);
    Q_ASSERT(QFile::exists(file));
    return QIcon(file);
}

QIcon buttonIcon(const QString& name) {
    const QIcon drawing = icon(name);
    QIcon result;
    for (const int side : {20, 24, 40, 48}) {
        const QPixmap pixmap = drawing.pixmap(QSize(side, side), 1.0);
        result.addPixmap(pixmap);
        result.addPixmap(faded(pixmap), QIcon::Disabled);
    }
    return result;
}

QString stockPicture(const QString& name) {
    initAssets();
    const QString file = QStringLiteral(":/stock/%1.svg").arg(name);
    Q_ASSERT(QFile::exists(file));
    return file;
}

}  // namespace quorvel::forms
