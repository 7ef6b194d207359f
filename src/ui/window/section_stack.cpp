#include "ui/window/section_stack.h"

#include "ui/look/motion.h"

#include <QPainter>
#include <QVariantAnimation>

namespace velmora {

/// The picture of the last section while it fades away.
class SectionStack::Fading : public QWidget {
public:
    explicit Fading(QWidget* parent) : QWidget(parent) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
        away_.setStartValue(1.0);
        away_.setEndValue(0.0);
        away_.setDuration(Motion::sectionChange);
        connect(&away_, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
        connect(&away_, &QVariantAnimation::finished, this, [this] {
            hide();
            picture_ = {};
        });
    }

    void start(const QPixmap& picture) {
        picture_ = picture;
        setGeometry(parentWidget()->rect());
        show();
        raise();
        away_.stop();
        away_.start();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setOpacity(away_.currentValue().toDouble());
        painter.drawPixmap(0, 0, picture_);
    }

private:
    QPixmap picture_;
    QVariantAnimation away_;
};

SectionStack::SectionStack(QWidget* parent) : QStackedWidget(parent), fading_(new Fading(this)) {}

void SectionStack::showSection(QWidget* section) {
    if (section == currentWidget())
        return;
    const QPixmap last = isVisible() ? grab() : QPixmap();
    setCurrentWidget(section);
    if (!last.isNull())
        fading_->start(last);
}

} // namespace velmora
