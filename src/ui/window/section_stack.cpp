#include "ui/window/section_stack.h"

#include "ui/look/motion.h"
#include "ui/look/transition.h"

#include <QPainter>

namespace velmora {

/// The picture of the last section while it fades away.
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
        setGeometry(parentWidget()->rect());
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
