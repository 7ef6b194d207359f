#include "ui/window/section_stack.h"

#include "ui/blocks/layouts.h"
#include "ui/look/motion.h"
#include "ui/look/transition.h"

#include <QGridLayout>
#include <QPainter>
#include <QStackedLayout>

#include <algorithm>

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
    : QWidget(parent), layout_(new QStackedLayout), fading_(new Fading(this)) {
    auto* layers = bareLayout<QGridLayout>(this);
    layers->addLayout(layout_, 0, 0);
    layers->addWidget(fading_, 0, 0);
}

void SectionStack::addSection(Section section, Build build) {
    sections_[section].build = std::move(build);
}

QWidget* SectionStack::widgetOf(Section section) {
    Entry& entry = sections_.at(section);
    if (!entry.widget) {
        entry.widget = entry.build();
        layout_->addWidget(entry.widget);
        emit built(entry.widget);
    }
    return entry.widget;
}

void SectionStack::showSection(Section section) {
    QWidget* widget = widgetOf(section);
    if (widget == layout_->currentWidget())
        return;
    const QPixmap last = isVisible() ? grab() : QPixmap();
    layout_->setCurrentWidget(widget);
    if (!last.isNull())
        fading_->start(last);
}

bool SectionStack::buildNext() {
    const auto missing = std::ranges::find_if(sections_, [](const auto& one) { return !one.second.widget; });
    if (missing != sections_.end())
        widgetOf(missing->first);
    return missing != sections_.end();
}

} // namespace velmora
