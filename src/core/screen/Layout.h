#pragma once

#include "core/screen/ControlArray.h"
#include "core/screen/Controls.h"

#include <QGridLayout>
#include <QGroupBox>

#include <initializer_list>
#include <string_view>

class QBoxLayout;

/// The few pieces from which every form is laid out, so that all look alike.
namespace forcelab::screen {

inline constexpr int kGap = 8;           ///< between controls, pixels
inline constexpr int kMargin = 10;       ///< around a form
inline constexpr int kNumberWidth = 110; ///< of a box for a number

/// A titled group. Its object name is the system's, "fraShape".
class Frame : public QGroupBox {
  public:
    explicit Frame(QWidget* parent = nullptr);
    void SetCaption(std::string_view caption) { setTitle(Q(caption)); }
};

/// Fills a frame or a plain widget row by row: caption at the left, then the controls.
class Rows {
  public:
    explicit Rows(QWidget* owner);
    Rows& Row(QWidget* caption, std::initializer_list<QWidget*> controls);
    Rows& Row(std::string_view caption, std::initializer_list<QWidget*> controls);
    Rows& Wide(QWidget* control); ///< over the whole width
    Rows& Stretch();              ///< takes up what height is left

  private:
    QGridLayout* grid_;
    int next_ = 0;
};

QBoxLayout* Across(std::initializer_list<QWidget*> widgets); ///< side by side
QBoxLayout* Down(std::initializer_list<QWidget*> widgets);   ///< one below the other
/// The options `from` to `to` of an array side by side (or `columns` of them a line) in a widget.
QWidget* OptionRow(const OptionArray& options, int from, int to, int columns = 0);
/// A frame of options with a caption, as for units.
Frame* OptionFrame(Frame* frame, std::string_view caption, const OptionArray& options, int from,
                   int to, int columns = 0);

} // namespace forcelab::screen
