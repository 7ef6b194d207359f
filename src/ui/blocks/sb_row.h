#pragma once

#include <QWidget>

namespace velmora {

/// A labelled row of a form under a hairline.
class SBRow : public QWidget {
    Q_OBJECT

public:
    /// `first` draws the hairline a little stronger. `lead` moves the label down, in pixels, to align it with
    /// the first line of the content.
    SBRow(const QString& label, bool dark, QWidget* content, bool first, int lead, QWidget* parent);
};

} // namespace velmora
