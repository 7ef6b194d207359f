#pragma once

#include "model/visit_patterns.h"

#include <QWidget>

namespace velmora {

class CountBars;
class Text;

/// The visits by camera and by how they ended. Each row is a button.
class PatternsSummary : public QWidget {
    Q_OBJECT

public:
    explicit PatternsSummary(QWidget* parent);

    void setPatterns(const VisitPatterns& patterns);
    /// Moves the keyboard focus to the first row.
    void focusFirst(Qt::FocusReason reason);

signals:
    /// `name` is the shown one.
    void cameraChosen(const QString& name);
    void outcomeChosen(velmora::Outcome outcome);

private:
    CountBars* cameras_;
    CountBars* outcomes_;
    Text* flown_;
};

} // namespace velmora
