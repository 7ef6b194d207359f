#pragma once

#include "ui/look/tokens.h"
#include "ui/look/type.h"

#include <QAbstractButton>

namespace velmora {

/// A link in running text, underlined while the pointer is over it. Space and Enter click it.
class LinkButton : public QAbstractButton {
    Q_OBJECT

public:
    LinkButton(const QString& text, QWidget* parent, const TextStyle& style = Type::link,
               const QColor& color = SB::blue);

    void setWords(const QString& text);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    TextStyle style_;
    QColor color_;
};

} // namespace velmora
