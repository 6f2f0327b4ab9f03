/// The plain controls of property windows, each made with its system name and caption.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStringList>

class QBoxLayout;
class QHBoxLayout;
class QVBoxLayout;

namespace quorvel::groups {

/// A name or caption out of a group's table of names.
inline QString name(const char* text) {
    return QString::fromLatin1(text);
}

/// A frame with its caption; what stands in it goes into `column`, from top to bottom.
struct Frame {
    QGroupBox* box;
    QVBoxLayout* column;
};
Frame makeFrame(const char* name, const char* caption, QWidget* parent);

/// Widgets side by side. `wide` takes the room that is left; without it they stand at the left.
QHBoxLayout* makeRow(const std::vector<QWidget*>& widgets, const QWidget* wide = nullptr);

void addAll(QVBoxLayout* column, const std::vector<QWidget*>& widgets);

/// Two columns of one width, side by side at the end of `column`.
std::array<QVBoxLayout*, 2> addHalves(QVBoxLayout* column);
/// How far something stands in from the option that it belongs to, in pixels.
inline constexpr int kIndent = 22;

/// Captions without a name of the system's own bear none.
QLabel* makeLabel(const char* text, QWidget* parent, const char* name = "");

/// A caption that may be longer than its room: it wraps, and the height follows.
class WrapCheck : public QCheckBox {
    Q_OBJECT
  public:
    WrapCheck(const QString& caption, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;

  protected:
    bool hitButton(const QPoint& at) const override { return rect().contains(at); }
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QRect textArea(int width) const;
};

QCheckBox* makeCheck(const char* name, const char* caption, QWidget* parent);
WrapCheck* makeWrapCheck(const char* name, const char* caption, QWidget* parent);

/// A drop-down list with fixed entries. `spoken` is what a screen reader says of it.
QComboBox* makeList(const QString& name, const QString& spoken, const QStringList& entries,
                    QWidget* parent);

/// A button of the size of its caption, such as "...". `spoken` says what the caption does not.
QPushButton* makeSmallButton(const QString& name, const char* caption, const QString& spoken,
                             QWidget* parent);

/// What a button that plays a preview shows.
inline const QString kIdle = QStringLiteral(">");
inline const QString kPlaying = QStringLiteral("[]");

/// Options of which one is chosen, numbered from a first index.
class OptionGroup : public QObject {
    Q_OBJECT
  public:
    /// `name` is the control array; its elements are put into no layout.
    OptionGroup(const char* name, int firstIndex, const std::vector<const char*>& captions,
                QWidget* parent);

    [[nodiscard]] QRadioButton* option(int index) const;
    [[nodiscard]] QRadioButton* first() const { return options_.front(); }
    [[nodiscard]] std::vector<QWidget*> widgets() const {
        return {options_.begin(), options_.end()};
    }

    /// The index of the option that is on, or nothing.
    [[nodiscard]] std::optional<int> chosen() const;
    /// Puts an option on, or all off when there is none of that index. Says nothing.
    void choose(int index);
    /// A stored 0 stands for the first option.
    [[nodiscard]] int reading(int stored) const { return stored == 0 ? firstIndex_ : stored; }

  Q_SIGNALS:
    /// The author has clicked an option.
    void clicked(int index);

  private:
    void followFocus();

    int firstIndex_;
    std::vector<QRadioButton*> options_;
};

/// The channels of a sound, "(Auto/Index)" to "(Dialogue)".
class ChannelList : public QComboBox {
    Q_OBJECT
  public:
    ChannelList(const QString& name, QWidget* parent);
    /// What is no channel stands for the first entry.
    static int reading(int stored);
};

/// The operators of a flag test.
QStringList comparisons();

}  // namespace quorvel::groups
