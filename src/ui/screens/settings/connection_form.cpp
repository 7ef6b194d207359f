#include "ui/screens/settings/connection_form.h"

#include "ui/blocks/choice.h"
#include "ui/blocks/fold.h"
#include "ui/blocks/layouts.h"
#include "ui/blocks/status_dot.h"
#include "ui/blocks/text.h"
#include "ui/blocks/text_field.h"
#include "ui/look/motion.h"
#include "ui/look/tokens.h"
#include "ui/look/words.h"
#include "ui/screens/link_color.h"

#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include <optional>

namespace velmora {

namespace {

constexpr int lowestPort = 1, highestPort = 65535;

std::optional<int> portFrom(const QString& text) {
    bool isNumber = false;
    const int port = text.toInt(&isNumber);
    return isNumber && port >= lowestPort && port <= highestPort ? std::optional(port) : std::nullopt;
}

} // namespace

ConnectionForm::ConnectionForm(AppStore& store, QWidget* parent)
    : QWidget(parent),
      store_(store),
      demo_(new RadioChoice(tr("Demo mode (built-in simulation)"), this)),
      server_(new RadioChoice(tr("velmora on my network"), this)) {
    serverFold_ = new Fold(buildServer(), 0, Motion::formFold, this);
    auto* column = bareLayout<QVBoxLayout>(this);
    column->addWidget(demo_);
    column->addWidget(server_);
    column->addWidget(serverFold_);
    column->addSpacing(Measure::gap8);
    column->addWidget(new Label2(
        tr("The computer running velmora serves the app API described in docs/APP_API.md."), false, this));
    const auto applyWhenChosen = [this](RadioChoice* choice, bool linked) {
        connect(choice, &QAbstractButton::toggled, this, [this, linked](bool on) {
            if (on && linked != store_.settings().linkMode)
                store_.applyLinkMode(linked);
        });
    };
    applyWhenChosen(demo_, false);
    applyWhenChosen(server_, true);
    connect(host_, &QLineEdit::textChanged, this, &ConnectionForm::storeHost);
    connect(port_, &QLineEdit::textChanged, this, &ConnectionForm::storePort);
    connect(port_, &QLineEdit::editingFinished, this, &ConnectionForm::showPort);
    connect(&store_, &AppStore::linkStatusChanged, this, &ConnectionForm::refresh);
    showPort();
}

QWidget* ConnectionForm::buildServer() {
    auto* block = new QWidget(this);
    host_ = new TextField(tr("Host"), {}, block);
    host_->setFixedWidth(Measure::hostField);
    port_ = new TextField(tr("Port"), {}, block);
    port_->setFixedWidth(Measure::portField);
    port_->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]{0,5}")), port_));
    auto* fields = new QHBoxLayout;
    fields->setSpacing(Measure::linkGap);
    fields->addWidget(new Text(tr("Host"), Type::body, SB::muted, block), 0, Qt::AlignVCenter);
    fields->addWidget(host_);
    fields->addSpacing(Measure::gap12);
    fields->addWidget(new Text(tr("Port"), Type::body, SB::muted, block), 0, Qt::AlignVCenter);
    fields->addWidget(port_);
    fields->addStretch(1);

    portError_ =
        new Text(tr("Not stored: a port is a whole number from 1 to 65535."), Type::label2, SB::alert, block);
    dot_ = new StatusDot({.color = SB::dot, .diameter = Measure::statusDotInRow}, block);
    status_ = new Text({}, Type::connection, SB::ink, block);
    auto* statusLine = new QHBoxLayout;
    statusLine->setSpacing(Measure::linkGap);
    statusLine->addWidget(dot_, 0, Qt::AlignVCenter);
    statusLine->addWidget(status_, 1);

    auto* column = new QVBoxLayout(block);
    column->setContentsMargins(Measure::radioIndent, Measure::gap12, 0, Measure::gap4);
    column->setSpacing(Measure::gap8);
    column->addLayout(fields);
    column->addWidget(portError_);
    column->addLayout(statusLine);
    return block;
}

void ConnectionForm::storeHost(const QString& host) {
    Settings settings = store_.settings();
    settings.host = host.toStdString();
    store_.setSettings(settings);
}

/// Typing passes through other valid ports; if the text is invalid, the previously stored port is restored.
void ConnectionForm::storePort(const QString& text) {
    const auto port = portFrom(text);
    port_->setInvalid(!port);
    portError_->setVisible(!port);
    Settings settings = store_.settings();
    settings.port = port.value_or(storedPort_);
    store_.setSettings(settings);
}

/// Replaces an invalid text by the stored port.
void ConnectionForm::showPort() {
    storedPort_ = store_.settings().port;
    port_->setText(QString::number(storedPort_));
    port_->setInvalid(false);
    portError_->setVisible(false);
}

void ConnectionForm::refresh() {
    const Settings& settings = store_.settings();
    (settings.linkMode ? server_ : demo_)->setChecked(true);
    serverFold_->setOpen(settings.linkMode);
    host_->setText(toQString(settings.host));
    if (!port_->hasFocus())
        showPort();
    dot_->setDotStyle({.color = linkColor(store_.linkStatus()), .diameter = Measure::statusDotInRow});
    status_->setText(store_.linkStatus().text());
}

} // namespace velmora
