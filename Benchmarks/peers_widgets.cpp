#include "peers_widgets.h"

#include <QLCDNumber>
#include <QLabel>
#include <QPaintEvent>
#include <QPainter>

#include "Orvo/layout/roles.h"
#include "bench.h"

namespace Orvo::Benchmarks {

using Layout::Kind;

namespace {

QColor colour(Colour colour) { return {colour.red, colour.green, colour.blue}; }

QString string(std::u16string_view text) {
    return QString::fromUtf16(text.data(), qsizetype(text.size()));
}

// The segments of each digit: top, upper right, lower right, bottom, lower left, upper left,
// middle.
constexpr std::array kSegments{0x3f, 0x06, 0x5b, 0x4f, 0x66, 0x6d, 0x7d, 0x07, 0x7f, 0x6f};

// With faces that are there.
QFont fontOf(const Layout::Font& looks) {
    QFont font(looks.face == Layout::Face::serif ? "Liberation Serif" : "Liberation Sans");
    font.setPointSizeF(looks.points);
    font.setBold(looks.isBold);
    font.setItalic(looks.isItalic);
    font.setUnderline(looks.isUnderlined);
    return font;
}

bool isLamp(const Layout::Widget& row) {
    return row.style.kind == Kind::shape && !row.style.isSolid && row.style.isOpaque;
}

}  // namespace

class RowWidget final : public QWidget {
public:
    RowWidget(const Layout::Widget& row, QRect place, QWidget* parent)
        : QWidget(parent), row_(row), text_(string(row.caption)) {
        setGeometry(place);
        setFont(fontOf(row.style.font));
        setVisible(row.style.isVisible && row.style.kind != Kind::timer);
    }

    void set(int value) {
        value_ = value;
        update();
    }
    void setText(const QString& text) {
        text_ = text;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        switch (row_.style.kind) {
            case Kind::label:
                return paintText(painter);
            case Kind::shape:
                return paintShape(painter);
            case Kind::digit:
                return paintDigit(painter);
            case Kind::line:
                return paintLine(painter);
            default:
                painter.fillRect(rect(), colour(row_.style.back));
                return paintText(painter);
        }
    }

private:
    void paintText(QPainter& painter) const {
        painter.setPen(colour(row_.style.text));
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignTop, text_);
    }

    void paintShape(QPainter& painter) const {
        painter.setPen(colour(row_.style.border));
        if (row_.style.isOpaque) {
            painter.setBrush(colour(value_ != 0 ? row_.style.fill : row_.style.back));
        }
        painter.setRenderHint(QPainter::Antialiasing);
        painter.drawEllipse(rect().adjusted(0, 0, -1, -1));
    }

    void paintDigit(QPainter& painter) const {
        const int right = width() - 2;
        const int middle = height() / 2;
        const int bottom = height() - 2;
        const std::array<QRect, 7> segments{{{1, 0, right, 2},
                                             {right, 1, 2, middle},
                                             {right, middle, 2, middle},
                                             {1, bottom, right, 2},
                                             {0, middle, 2, middle},
                                             {0, 1, 2, middle},
                                             {1, middle - 1, right, 2}}};
        for (std::size_t i = 0; i < segments.size(); ++i) {
            const bool isLit = ((kSegments[std::size_t(value_)] >> i) & 1) != 0;
            painter.fillRect(segments[i], colour(isLit ? row_.style.text : row_.style.back));
        }
    }

    void paintLine(QPainter& painter) const {
        painter.setPen(colour(row_.style.text));
        painter.drawLine(0, 0, width() - 1, height() - 1);
    }

    const Layout::Widget& row_;
    QString text_;
    int value_ = 0;
};

WidgetPanel::WidgetPanel(Integer tab) {
    resize(placeOf(0).size());
    for (QWidget*& page : pages_) {
        page = new QWidget(this);
        page->resize(size());
        page->setVisible(page == pages_[std::size_t(tab)]);
    }
    std::vector<RowWidget*> widgets(Layout::kWidgetCount);
    for (Widgets::WidgetId id = 1; id < Layout::kWidgetCount; ++id) {
        const Layout::Widget& row = Layout::describe(id);
        const auto& [left, top, right, bottom] = row.place;
        QRect place = placeOf(id).translated(-placeOf(row.container).topLeft());
        if (row.style.kind == Kind::line) {
            place = QRect(QPoint(left, top) / Layout::kTwipsPerPixel,
                          QPoint(right, bottom) / Layout::kTwipsPerPixel)
                        .normalized();
        }
        QWidget* parent =
            row.container == 0 ? pages_[std::size_t(row.tab)] : widgets[row.container];
        auto* widget = new RowWidget(row, place, parent);
        widgets[id] = widget;
        if (row.style.kind == Kind::digit) digits_.push_back(widget);
        if (isLamp(row)) lamps_.push_back(widget);
    }
    for (const Layout::Pair& pair : Layout::kPairs) states_.push_back(widgets[pair.linkText]);
}

void WidgetPanel::pushEverything(int turn) {
    for (RowWidget* digit : digits_) digit->set(turn % 10);
    for (RowWidget* lamp : lamps_) lamp->set(turn % 2);
    for (RowWidget* state : states_) state->setText(turn % 2 == 0 ? "Disconnected" : "Connected");
}

std::unique_ptr<WidgetPanel> makeWidgetPanel(Integer tab) {
    return std::make_unique<WidgetPanel>(tab);
}

ReadoutPanel::ReadoutPanel() {
    resize(placeOf(0).size());
    for (int i = 0; i < 7; ++i) {
        readouts_.push_back(new QLCDNumber(3, this));
        readouts_.back()->setGeometry(10, 40 * i, 45, 20);
    }
    for (int i = 0; i < 14; ++i) {
        lamps_.push_back(new QLabel(this));
        lamps_.back()->setGeometry(100, 20 * i, 17, 11);
        lamps_.back()->setAutoFillBackground(true);
    }
}

void ReadoutPanel::pushEverything(int turn) {
    for (QLCDNumber* readout : readouts_) readout->display(111 * (turn % 10));
    const QPalette palette(turn % 2 == 0 ? Qt::green : Qt::darkGreen);
    for (QLabel* lamp : lamps_) lamp->setPalette(palette);
}

namespace {

class KeptChild final : public QWidget {
public:
    KeptChild(QRect place, QWidget* parent) : QWidget(parent), picture_(place.size()) {
        setGeometry(place);
        setAttribute(Qt::WA_OpaquePaintEvent);
        picture_.fill(Qt::red);
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(0, 0, picture_); }

private:
    QPixmap picture_;
};

}  // namespace

KeptChildWindow::KeptChildWindow(QRect place) : child_(new KeptChild(place, this)) {
    resize(placeOf(0).size());
}

CopiedWindow::CopiedWindow(const QWidget& window)
    : picture_(const_cast<QWidget&>(window).grab()), copy_(picture_.size()) {}

void CopiedWindow::copy() { QPainter(&copy_).drawPixmap(0, 0, picture_); }

std::vector<std::unique_ptr<PlainObject>> makePlainObjects() {
    std::vector<std::unique_ptr<PlainObject>> objects;
    for (const Layout::Widget& row : Layout::kWidgets) {
        objects.push_back(std::make_unique<PlainObject>());
        objects.back()->text = row.caption;
        objects.back()->colour = row.style.text;
    }
    return objects;
}

}  // namespace Orvo::Benchmarks
