#pragma once

#include "store/app_store.h"

#include <QWidget>

namespace velmora {

class Fold;
class RadioChoice;
class StatusDot;
class Text;
class TextField;

/// The choice between demo mode and a server, and the server's address.
class ConnectionForm : public QWidget {
    Q_OBJECT

public:
    ConnectionForm(AppStore& store, QWidget* parent);

    void refresh();

private:
    QWidget* buildServer();
    void storeHost(const QString& host);
    void storePort(const QString& text);
    void showPort();

    AppStore& store_;
    RadioChoice* demo_;
    RadioChoice* server_;
    Fold* serverFold_;
    TextField* host_;
    TextField* port_;
    std::int64_t storedPort_ = 0; ///< stored when typing began
    Text* portError_;
    StatusDot* dot_;
    Text* status_;
};

} // namespace velmora
