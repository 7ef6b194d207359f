#pragma once

#include "store/app_store.h"

#include <QWidget>

#include <functional>
#include <map>

class QStackedLayout;

namespace velmora {

/// Shows one section at a time, with a cross-fade between two. A section is built when it is first wanted.
class SectionStack : public QWidget {
    Q_OBJECT

public:
    explicit SectionStack(QWidget* parent);

    /// Makes a section's widget, whose parent is the stack.
    using Build = std::function<QWidget*()>;
    void addSection(Section section, Build build);
    /// The widget of the section; builds it if nobody did.
    QWidget* widgetOf(Section section);
    void showSection(Section section);
    /// Builds one section that is missing. Returns false if none is.
    bool buildNext();

signals:
    void built(QWidget* section);

private:
    class Fading;

    struct Entry {
        Build build;
        QWidget* widget = nullptr;
    };

    QStackedLayout* layout_;
    std::map<Section, Entry> sections_;
    Fading* fading_;
};

} // namespace velmora
