#include "core/screen/Layout.h"

#include <QBoxLayout>

namespace forcelab::screen {

namespace {

QBoxLayout* Fill(QBoxLayout* box, std::initializer_list<QWidget*> widgets)
{
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(kGap);
    for (QWidget* widget : widgets) box->addWidget(widget);
    return box;
}

// A label's mnemonic goes to the first control of its row.
void JoinCaption(QWidget* caption, QWidget* control)
{
    auto* label = qobject_cast<QLabel*>(caption);
    if (label && control->focusPolicy() != Qt::NoFocus) label->setBuddy(control);
}

} // namespace

Frame::Frame(QWidget* parent) : QGroupBox(parent) {}

Rows::Rows(QWidget* owner) : grid_(new QGridLayout(owner))
{
    grid_->setHorizontalSpacing(kGap);
    grid_->setVerticalSpacing(kGap - 2);
    grid_->setColumnStretch(1, 1);
}

Rows& Rows::Row(QWidget* caption, std::initializer_list<QWidget*> controls)
{
    grid_->addWidget(caption, next_, 0);
    if (controls.size() == 1) {
        grid_->addWidget(*controls.begin(), next_, 1);
    } else if (controls.size() > 1) {
        grid_->addLayout(Across(controls), next_, 1);
    }
    if (controls.size() > 0) JoinCaption(caption, *controls.begin());
    ++next_;
    return *this;
}

Rows& Rows::Row(std::string_view caption, std::initializer_list<QWidget*> controls)
{
    return Row(new QLabel(Q(caption), grid_->parentWidget()), controls);
}

Rows& Rows::Wide(QWidget* control)
{
    grid_->addWidget(control, next_++, 0, 1, 2);
    return *this;
}

Rows& Rows::Stretch()
{
    grid_->setRowStretch(next_++, 1);
    return *this;
}

QBoxLayout* Across(std::initializer_list<QWidget*> widgets)
{
    return Fill(new QHBoxLayout, widgets);
}

QBoxLayout* Down(std::initializer_list<QWidget*> widgets)
{
    return Fill(new QVBoxLayout, widgets);
}

QWidget* OptionRow(const OptionArray& options, int from, int to, int columns)
{
    auto* row = new QWidget;
    auto* grid = new QGridLayout(row);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(kGap);
    grid->setVerticalSpacing(kGap / 2);
    const int width = columns > 0 ? columns : to - from + 1;
    for (int i = from; i <= to; ++i)
        grid->addWidget(&options(i), (i - from) / width, (i - from) % width);
    return row;
}

Frame* OptionFrame(Frame* frame, std::string_view caption, const OptionArray& options, int from,
                   int to, int columns)
{
    frame->SetCaption(caption);
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(OptionRow(options, from, to, columns));
    return frame;
}

} // namespace forcelab::screen
