#pragma once

#include <QLayout>

namespace velmora {

/// Creates a layout for the widget, which owns it, without margins. `spacing` is in pixels.
template <class Layout>
Layout* bareLayout(QWidget* parent, int spacing = 0) {
    auto* layout = new Layout(parent);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(spacing);
    return layout;
}

/// Base of custom layouts: owns the items and has no margins. Subclasses position the items.
class ItemLayout : public QLayout {
public:
    ItemLayout() { setContentsMargins(0, 0, 0, 0); }
    ~ItemLayout() override { qDeleteAll(items_); }

    void addItem(QLayoutItem* item) override { items_.append(item); }
    QLayoutItem* takeAt(int index) override { return itemAt(index) ? items_.takeAt(index) : nullptr; }
    QLayoutItem* itemAt(int index) const override { return items_.value(index); }
    int count() const override { return static_cast<int>(items_.size()); }

private:
    QList<QLayoutItem*> items_;
};

} // namespace velmora
