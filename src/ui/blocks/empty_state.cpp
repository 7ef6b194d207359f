#include "ui/blocks/empty_state.h"

#include "ui/blocks/text.h"
#include "ui/look/measures.h"
#include "ui/look/paint.h"
#include "ui/look/tokens.h"

#include <QVBoxLayout>

namespace velmora {

namespace {

class EmptyIcon : public QWidget {
public:
    EmptyIcon(Icon icon, QWidget* parent) : QWidget(parent), icon_(icon) {
        setFixedSize(Measure::emptyIcon, Measure::emptyIcon);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintIcon(painter, rect(), icon_, SB::dot);
    }

private:
    Icon icon_;
};

} // namespace

EmptyState::EmptyState(Icon icon, QWidget* control, QWidget* parent)
    : QWidget(parent),
      title_(new Text({}, Type::emptyTitle, SB::ink, this)),
      body_(new Text({}, Type::confirmationBody, SB::body, this)) {
    auto* column = new QVBoxLayout(this);
    column->setSpacing(Measure::gap8);
    column->addStretch(1);
    column->addWidget(new EmptyIcon(icon, this), 0, Qt::AlignHCenter);
    column->addSpacing(Measure::gap16);
    for (Text* text : {title_, body_}) {
        text->setAlignment(Qt::AlignHCenter);
        column->addWidget(text, 0, Qt::AlignHCenter);
    }
    column->addSpacing(Measure::gap16);
    column->addWidget(control, 0, Qt::AlignHCenter);
    column->addStretch(1);
}

void EmptyState::setTexts(const QString& title, const QString& body) {
    title_->setText(title);
    body_->setText(body);
    for (Text* text : {title_, body_})
        text->setFixedSize(Measure::emptyWidth, text->heightForWidth(Measure::emptyWidth));
}

} // namespace velmora
