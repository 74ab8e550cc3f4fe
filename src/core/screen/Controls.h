#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>

#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace forcelab::screen {

inline QString Q(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A box for one line of text. Getting the focus selects the whole text, so that typing replaces
/// it. Enter is swallowed and goes to OnEnter, where a form has an order of boxes.
class TextBox : public QLineEdit {
  public:
    explicit TextBox(QWidget* parent = nullptr);
    [[nodiscard]] std::string Text() const { return text().toStdString(); }
    void SetText(std::string_view value) { setText(Q(value)); }
    void SetFocus() { setFocus(Qt::OtherFocusReason); }

    std::function<void()> OnEnter;
    std::function<void()> OnLostFocus;

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool selectOnRelease_ = false;
};

/// The number that TextBox holds, by the rule for text that the program wrote itself.
double TextBoxValue(const TextBox& box);

/// A line of text on a form.
class Label : public QLabel {
  public:
    explicit Label(QWidget* parent = nullptr) : QLabel(parent) {}
    [[nodiscard]] std::string Caption() const { return text().toStdString(); }
    void SetCaption(std::string_view value) { setText(Q(value)); }
};

/// One option of an array of options; choosing it by hand or in code is the same.
class OptionButton : public QRadioButton {
  public:
    explicit OptionButton(QWidget* parent = nullptr) : QRadioButton(parent) {}
    [[nodiscard]] bool Value() const { return isChecked(); }
    void SetCaption(std::string_view value) { setText(Q(value)); }
};

class CheckBox : public QCheckBox {
  public:
    explicit CheckBox(QWidget* parent = nullptr) : QCheckBox(parent) {}
    [[nodiscard]] bool Value() const { return isChecked(); }
    void SetCaption(std::string_view value) { setText(Q(value)); }
};

/// A list that drops down. Choosing a row, by hand or in code, fires currentIndexChanged.
class ComboBox : public QComboBox {
  public:
    explicit ComboBox(QWidget* parent = nullptr);
    void Clear() { clear(); }
    void AddItem(std::string_view item) { addItem(Q(item)); }
    [[nodiscard]] int ListIndex() const { return currentIndex(); } ///< -1: nothing chosen
    void SetListIndex(int index) { setCurrentIndex(index); }

  protected:
    void wheelEvent(QWheelEvent* event) override;
};

/// Fills a list with the materials that have an elastic modulus, in the order of their table.
void FillMaterialList(ComboBox& combo);
/// Fills a list with the materials that have a shear modulus.
void FillShearModulusList(ComboBox& combo);

/// Sets what a screen reader calls a control, and its tip where the two are the same.
void Describe(QWidget& widget, std::string_view accessibleName, std::string_view tip = {});

} // namespace forcelab::screen
