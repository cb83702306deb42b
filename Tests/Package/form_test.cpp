#include <memory>
#include <stdexcept>

#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QtUiTools/QUiLoader>

namespace {

constexpr auto kForm = R"(<ui version="4.0">
  <widget class="QWidget" name="form">
    <layout class="QVBoxLayout">
      <item><widget class="QCheckBox" name="check"/></item>
      <item>
        <widget class="Orvo::Window::PanelWidget" name="panel">
          <property name="zoom"><double>2.0</double></property>
        </widget>
      </item>
    </layout>
  </widget>
  <connections>
    <connection>
      <sender>check</sender> <signal>toggled(bool)</signal>
      <receiver>panel</receiver> <slot>setReadOnly(bool)</slot>
    </connection>
    <connection>
      <sender>panel</sender> <signal>onOff()</signal>
      <receiver>check</receiver> <slot>toggle()</slot>
    </connection>
  </connections>
</ui>)";

class FormTest : public testing::Test {
protected:
    FormTest() {
        QBuffer text;
        text.setData(kForm);
        text.open(QIODevice::ReadOnly);
        QUiLoader loader;
        form_.reset(loader.load(&text));
        if (form_ != nullptr) panel_ = form_->findChild<QWidget*>("panel");
        if (panel_ == nullptr) throw std::runtime_error(qPrintable(loader.errorString()));
    }

    std::unique_ptr<QWidget> form_;
    QWidget* panel_ = nullptr;
};

TEST_F(FormTest, ThePropertiesOfAFormTakeEffect) {
    const QSize plain(709, 460);
    form_->show();
    EXPECT_EQ(panel_->size(), 2 * plain);
    panel_->setProperty("zoom", 1);
    EXPECT_EQ(panel_->sizeHint(), plain);
    const QImage painted = panel_->grab().toImage();
    EXPECT_NE(painted.pixel(2, 2), painted.pixel(plain.width() / 2, plain.height() / 2));
}

TEST_F(FormTest, AFormConnectsSignalsAndSlots) {
    QMetaObject::invokeMethod(panel_, "onOff");
    EXPECT_TRUE(form_->findChild<QCheckBox*>("check")->isChecked());
    EXPECT_TRUE(panel_->property("readOnly").toBool());
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
