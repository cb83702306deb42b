#include "Manager/Window/link_dialog.h"

#include <chrono>

#include <QDialogButtonBox>
#include <QFile>
#include <QFormLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "Manager/Link/link_device.h"
#include "Manager/Window/manager_window.h"
#include "Orvo/window/drawing/shown_text.h"

namespace Orvo::Manager {
namespace {

using namespace std::chrono_literals;

constexpr auto kBetweenLooks = 2s;
constexpr auto kBetweenWatches = 100ms;
constexpr int kPortWidth = 120;
constexpr int kDescriptionWidth = 170;
constexpr int kPathRole = Qt::UserRole;

QString ownSpeed() { return LinkDialog::tr("As it is"); }

QStringList speeds() {
    return {ownSpeed(), "1200",  "2400",   "4800",   "9600",   "19200",
            "38400",    "57600", "115200", "230400", "460800", "921600"};
}

QString usualFormat() { return QString::fromStdString(LineSettings().format()); }

QStringList formats() { return {usualFormat(), "8E1", "8O1", "8N2", "7E1", "7O1", "7N2"}; }

QTreeWidgetItem* makeRow(const OfferedPort& port) {
    const QStringList texts{port.path, port.description, port.access};
    auto* row = new QTreeWidgetItem;
    row->setData(0, kPathRole, port.path);
    for (int column = 0; column < int(texts.size()); ++column) {
        row->setText(column, Window::shown(texts[column]));
        row->setToolTip(column, Window::onLines(texts[column]));
    }
    return row;
}

QTreeWidgetItem* makeEmptyRow() {
    auto* row = new QTreeWidgetItem({LinkDialog::tr(
        "No serial port is there. One that is plugged in appears here by itself.")});
    row->setFlags(Qt::ItemIsEnabled);
    return row;
}

QComboBox* makeChoice(const QStringList& texts) {
    auto* choice = new QComboBox;
    for (const QString& text : texts) choice->addItem(Window::shown(text));
    choice->setEditable(true);
    choice->setInsertPolicy(QComboBox::NoInsert);
    choice->setCompleter(nullptr);
    return choice;
}

QString capital(const QString& text) { return text.left(1).toUpper() + text.mid(1); }

}  // namespace

LinkDialog::LinkDialog(ManagerWindow& window, PortOffer offer)
    : QDialog(&window),
      window_(window),
      offer_(std::move(offer)),
      ports_(new QTreeWidget),
      path_(makeChoice(window.lastLinks())),
      speed_(makeChoice(speeds())),
      format_(makeChoice(formats())),
      keepsTrying_(new QCheckBox(tr("&Keep trying until it opens"))),
      message_(new AlertLabel),
      connect_(new QPushButton(tr("Connect"))),
      cancel_(new QPushButton(tr("Cancel"))) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Connect a link"));
    layOut();
    follow();
    showPorts();
    path_->setEditText("");
    const QStringList last = window.lastLinks();
    last.isEmpty() ? ports_->setCurrentItem(ports_->topLevelItem(0)) : chooseLink(last.front());
    if (offered_.empty() || ports_->currentItem() == nullptr) path_->setFocus();
}

void LinkDialog::layOut() {
    ports_->setHeaderLabels({tr("Port"), tr("What it is"), tr("Access")});
    ports_->setAccessibleName(tr("Ports of this machine"));
    ports_->setRootIsDecorated(false);
    ports_->setAllColumnsShowFocus(true);
    ports_->setStyleSheet("QTreeView::item { padding: 3px 2px; }");
    ports_->setColumnWidth(0, kPortWidth);
    ports_->setColumnWidth(1, kDescriptionWidth);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(ports_, 1);
    layout->addLayout(makeFields());
    layout->addWidget(keepsTrying_);
    layout->addWidget(message_);
    layout->addLayout(makeFoot());
    resize(600, 420);
}

QLayout* LinkDialog::makeFields() {
    path_->setToolTip(tr("A serial device, a pseudo-terminal, a pipe or a local socket"));
    path_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    auto* line = new QHBoxLayout;
    auto* formatLabel = new QLabel(tr("&Format:"));
    formatLabel->setBuddy(format_);
    line->addWidget(speed_, 1);
    line->addWidget(formatLabel);
    line->addWidget(format_, 1);
    auto* fields = new QFormLayout;
    fields->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    fields->addRow(tr("&Path:"), path_);
    auto* speedLabel = new QLabel(tr("&Speed:"));
    speedLabel->setBuddy(speed_);
    fields->addRow(speedLabel, line);
    return fields;
}

QLayout* LinkDialog::makeFoot() {
    keepsTrying_->setChecked(true);
    message_->setObjectName("Link message");
    message_->setWordWrap(true);
    message_->setTextFormat(Qt::PlainText);
    message_->setStyleSheet("font-weight: bold");
    message_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    message_->setMinimumHeight(2 * message_->fontMetrics().lineSpacing());
    connect_->setDefault(true);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(connect_, QDialogButtonBox::AcceptRole);
    buttons->addButton(cancel_, QDialogButtonBox::RejectRole);
    auto* foot = new QHBoxLayout;
    foot->addWidget(buttons);
    return foot;
}

void LinkDialog::follow() {
    connect(ports_, &QTreeWidget::currentItemChanged, this, &LinkDialog::choosePort);
    connect(ports_, &QTreeWidget::itemDoubleClicked, this, &LinkDialog::connectLink);
    connect(path_, &QComboBox::activated, this,
            [this](int number) { chooseLink(window_.lastLinks().value(number)); });
    connect(speed_, &QComboBox::currentTextChanged, format_,
            [this](const QString& speed) { format_->setEnabled(speed != ownSpeed()); });
    format_->setEnabled(false);
    connect(connect_, &QPushButton::clicked, this, &LinkDialog::connectLink);
    connect(cancel_, &QPushButton::clicked, this, &LinkDialog::reject);
    connect(&looks_, &QTimer::timeout, this, &LinkDialog::showPorts);
    connect(&watches_, &QTimer::timeout, this, &LinkDialog::watch);
    looks_.start(kBetweenLooks);
}

// Who has chosen one has still chosen it, wherever it stands now.
void LinkDialog::showPorts() {
    auto offered = offer_();
    if (ports_->topLevelItemCount() > 0 && offered == offered_) return;
    offered_ = std::move(offered);
    const QSignalBlocker unheard(ports_);
    ports_->clear();
    for (const OfferedPort& port : offered_) ports_->addTopLevelItem(makeRow(port));
    if (offered_.empty()) {
        ports_->addTopLevelItem(makeEmptyRow());
        ports_->setFirstColumnSpanned(0, {}, true);
    }
    ports_->setCurrentItem(itemOf(path()));
}

void LinkDialog::choosePort() {
    const auto* row = ports_->currentItem();
    if (row == nullptr || offered_.empty()) return;
    setPath(row->data(0, kPathRole).toString());
    say(row->text(2) == mayBeOpened() ? "" : row->text(2) + '.');
}

// With its speed, if it has one.
void LinkDialog::chooseLink(const QString& address) {
    const auto link = LinkAddress::read(nativeName(address));
    if (!link) return;
    setPath(QFile::decodeName(link->path.c_str()));
    speed_->setCurrentText(link->line ? QString::number(link->line->speed) : ownSpeed());
    format_->setCurrentText(link->line ? QString::fromStdString(link->line->format())
                                       : usualFormat());
    const QSignalBlocker unheard(ports_);
    ports_->setCurrentItem(itemOf(path()));
}

void LinkDialog::setPath(const QString& path) {
    chosenPath_ = path;
    path_->setEditText(Window::shown(path));
}

// What was chosen, though not all of it can be shown, or what has been typed instead.
QString LinkDialog::path() const {
    const QString text = path_->currentText();
    return text == Window::shown(chosenPath_) ? chosenPath_ : text.trimmed();
}

QTreeWidgetItem* LinkDialog::itemOf(const QString& path) const {
    for (int i = 0; i < int(offered_.size()); ++i) {
        if (offered_[std::size_t(i)].path == path) return ports_->topLevelItem(i);
    }
    return nullptr;
}

// What is typed behind a path goes before what is chosen.
std::optional<LinkAddress> LinkDialog::address() const {
    auto address = LinkAddress::read(nativeName(path()));
    const QString speed = speed_->currentText().trimmed();
    if (!address || address->line || speed == ownSpeed()) return address;
    address->line = LineSettings::read(nativeName(speed + ',' + format_->currentText().trimmed()));
    return address->line ? address : std::nullopt;
}

void LinkDialog::connectLink() {
    const auto address = this->address();
    if (!address) return say(tr("A link is %1.").arg(linkAddressRule()));
    window_.connectLink(*address);
    window_.refresh();
    say(tr("Opening…"));
    cancel_->setText(tr("Close"));
    watches_.start(kBetweenWatches);
}

void LinkDialog::watch() {
    const LinkDevice* link = window_.session().link();
    if (link == nullptr) return watches_.stop();
    if (link->isOpen()) return accept();
    if (link->trouble().empty()) return;
    const QString trouble = this->trouble(link->trouble());
    say(keepsTrying_->isChecked() ? tr("%1 Trying again, also when this is closed.").arg(trouble)
                                  : trouble);
    if (!keepsTrying_->isChecked()) giveUp();
}

void LinkDialog::giveUp() {
    watches_.stop();
    cancel_->setText(tr("Cancel"));
    window_.session().connectNothing();
    window_.refresh();
}

// With who may open it, where that is what is in the way.
QString LinkDialog::trouble(const std::string& trouble) const {
    const QString obstacle = obstacleTo(path());
    return capital(QString::fromStdString(trouble)) + '.' +
           (obstacle.isEmpty() ? "" : ' ' + obstacle + '.');
}

void LinkDialog::say(const QString& text) {
    const QString lines = Window::onLines(text, message_->font());
    if (lines == message_->text()) return;
    message_->setText(lines);
    if (!lines.isEmpty()) message_->alert();
}

}  // namespace Orvo::Manager
