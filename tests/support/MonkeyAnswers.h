#pragma once

#include "core/screen/Form.h"

#include <QObject>

#include <functional>
#include <vector>

namespace forcelab::test {

/// Sees to what would wait for a person: closes a menu that dropped down, and hands over the form
/// that wants an answer first, also one that came up while another was being answered.
class Answering {
  public:
    explicit Answering(std::function<void(screen::Form&)> onModal) : onModal_(std::move(onModal)) {}
    void Start(); ///< looks every millisecond
    void Stop() { on_ = false; }

  private:
    void LookLater();
    void Look();

    std::function<void(screen::Form&)> onModal_;
    std::vector<const screen::Form*> inHand_; ///< being answered, the last on top
    bool on_ = false;
    bool waiting_ = false; ///< a look is to come
    QObject receiver_;     ///< ends what waits with this object
};

} // namespace forcelab::test
