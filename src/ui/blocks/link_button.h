#pragma once

#include <QAbstractButton>

namespace velmora {

/// A link in running text, underlined while the pointer is over it. Space and Enter click it.
class LinkButton : public QAbstractButton {
    Q_OBJECT

public:
    LinkButton(const QString& text, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velmora
