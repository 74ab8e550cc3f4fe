#pragma once

#include "core/Picture.h"

#include <QToolButton>

#include <functional>
#include <string_view>

namespace forcelab::beams {

/// A button with a picture drawn by the program, and a word below it. A chosen one stays lit.
class PictureButton : public QToolButton {
  public:
    explicit PictureButton(QWidget* parent = nullptr);

    /// `draw` draws on a sheet of 5 to 3; `name` is what a screen reader says.
    void Setup(std::string_view caption, std::string_view name,
               const std::function<void(Picture&)>& draw);
    void SetChosen(bool chosen) { setChecked(chosen); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace forcelab::beams
