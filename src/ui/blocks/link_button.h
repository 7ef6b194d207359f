#pragma once

#include <QAbstractButton>

namespace velmora {

/// A link in running text: underlined under the pointer. Space and Enter follow it.
class LinkButton : public QAbstractButton {
    Q_OBJECT

public:
    LinkButton(const QString& text, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velmora
