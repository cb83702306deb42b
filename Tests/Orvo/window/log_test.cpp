#include <QAbstractItemView>
#include <QClipboard>
#include <QScrollBar>
#include <QSignalSpy>

#include "window_fixture.h"

namespace Orvo::Window {
namespace {

class LogTest : public WindowTest {
protected:
    void add(int count) {
        for (int i = 0; i < count; ++i) {
            const QString line = QString("line %1").arg(++added_);
            list_.addItem(fromQt(line));
        }
    }
    [[nodiscard]] int rows() { return view_.model()->rowCount(); }

    Widgets::List& list_ = store_[kCommon.log];
    QAbstractItemView& view_ = control<QAbstractItemView>(kCommon.log);

private:
    int added_ = 0;
};

TEST_F(LogTest, TheViewKeepsUpWithTheStore) {
    add(3);
    EXPECT_EQ(rows(), 0) << "before the frame";
    settle();
    EXPECT_EQ(rows(), 3);
    list_.clear();
    EXPECT_FALSE(view_.model()->index(2, 0).data().isValid()) << "gone, but not yet told";
    add(5);
    settle();
    EXPECT_EQ(rows(), 5);
    EXPECT_EQ(view_.model()->index(0, 0).data().toString(), "line 4");
}

TEST_F(LogTest, AFrameTellsOfItsNewLinesAtOnce) {
    QSignalSpy inserted(view_.model(), &QAbstractItemModel::rowsInserted);
    add(1000);
    settle();
    ASSERT_EQ(inserted.size(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 0);
    EXPECT_EQ(inserted[0][2].toInt(), 999);
}

TEST_F(LogTest, TheLastLineStaysInViewUntilSomebodyScrolls) {
    add(100);
    settle();
    QScrollBar& bar = *view_.verticalScrollBar();
    EXPECT_EQ(bar.value(), bar.maximum());
    front_.setZoom(0.6);
    EXPECT_EQ(bar.value(), bar.maximum()) << "at another size, too";
    bar.setValue(10);
    add(100);
    settle();
    EXPECT_EQ(bar.value(), 10);
}

TEST_F(LogTest, KeysMoveSelectAndCopy) {
    add(50);
    settle();
    view_.setFocus();
    QTest::keyClick(&view_, Qt::Key_Home);
    QTest::keyClick(&view_, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(&view_, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "line 1\nline 2");
    QTest::keyClick(&view_, Qt::Key_End);
    EXPECT_EQ(view_.currentIndex().row(), 49);
}

TEST_F(LogTest, ADiscardedKeyDoesNotReachTheView) {
    add(50);
    settle();
    panel_.discardsKeys = true;
    QApplication::clipboard()->setText("before");
    view_.setFocus();
    QTest::keyClick(&view_, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "before");
    EXPECT_EQ(panel_.take(), (Heard{{kCommon.log, "key3"}}));
}

}  // namespace
}  // namespace Orvo::Window
