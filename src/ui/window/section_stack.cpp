#include "ui/window/section_stack.h"

#include "ui/blocks/layouts.h"
#include "ui/look/motion.h"
#include "ui/look/transition.h"

#include <QGridLayout>
#include <QPainter>
#include <QStackedLayout>

namespace velmora {

/// A picture of the previous section that fades out.
class SectionStack::Fading : public QWidget {
public:
    explicit Fading(QWidget* parent) : QWidget(parent), opacity_(*this, Motion::sectionChange) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
        connect(&opacity_, &Transition::changed, this, qOverload<>(&QWidget::update));
        connect(&opacity_, &Transition::finished, this, [this] {
            hide();
            picture_ = {};
        });
    }

    void start(const QPixmap& picture) {
        picture_ = picture;
        show();
        raise();
        opacity_.move(1, 0);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setOpacity(opacity_.value());
        painter.drawPixmap(0, 0, picture_);
    }

private:
    QPixmap picture_;
    Transition opacity_;
};

SectionStack::SectionStack(QWidget* parent)
    : QWidget(parent), sections_(new QStackedLayout), fading_(new Fading(this)) {
    auto* layers = bareLayout<QGridLayout>(this);
    layers->addLayout(sections_, 0, 0);
    layers->addWidget(fading_, 0, 0);
}

void SectionStack::addSection(QWidget* section) {
    sections_->addWidget(section);
}

void SectionStack::showSection(QWidget* section) {
    if (section == sections_->currentWidget())
        return;
    const QPixmap last = isVisible() ? grab() : QPixmap();
    sections_->setCurrentWidget(section);
    if (!last.isNull())
        fading_->start(last);
}

} // namespace velmora
