#pragma once

#include "ui/look/icons.h"
#include "ui/look/measures.h"
#include "ui/look/tokens.h"

#include <QPainter>
#include <QWidget>

namespace velmora {

/// The icon of an empty history.
class EmptyIcon : public QWidget {
public:
    explicit EmptyIcon(QWidget* parent) : QWidget(parent) {
        setFixedSize(Measure::emptyIcon, Measure::emptyIcon);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintIcon(painter, rect(), Icon::history, SB::dot);
    }
};

} // namespace velmora
