#pragma once

#include <QRadioButton>
#include <QWidget>

#include <vector>

namespace velmora {

/// One of several options, with its text beside it. Siblings exclude each other.
class RadioChoice : public QRadioButton {
    Q_OBJECT

public:
    RadioChoice(const QString& text, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& position) const override;
};

/// A row of options of which one is chosen. Left and right arrows move the choice.
class SegmentedChoice : public QWidget {
    Q_OBJECT

public:
    SegmentedChoice(const QString& name, const QStringList& options, bool wide, QWidget* parent);

    int currentIndex() const { return currentIndex_; }
    /// Emits nothing.
    void setCurrentIndex(int index);

signals:
    /// The owner chose, by mouse, key or an accessible action.
    void activated(int index);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    class Segment;

    std::vector<Segment*> segments_;
    int currentIndex_ = 0;
};

} // namespace velmora
