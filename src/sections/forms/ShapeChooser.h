#pragma once

#include <QAction>
#include <QBoxLayout>
#include <QWidget>

#include <functional>
#include <string_view>

namespace forcelab::sections {

/// All shapes by their pictures, for as long as none is chosen. Each picture stands for the menu
/// item of its shape.
class ShapeChooser : public QWidget {
  public:
    using ItemOf = std::function<QAction*(int shapeIndex)>;

    explicit ShapeChooser(QWidget* parent = nullptr);
    /// Gives each shape the picture that its menu item shows, too.
    void Fill(const ItemOf& itemOf);

  private:
    void AddRow(std::string_view heading, std::initializer_list<int> shapes, const ItemOf& itemOf);

    QVBoxLayout* rows_;
};

} // namespace forcelab::sections
