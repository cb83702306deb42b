#include "pictures_fixture.h"

#include <cmath>
#include <cstdlib>
#include <numbers>
#include <string>

#include <QDir>
#include <QTest>

#include "picture_comparison.h"

namespace Orvo::Window {
namespace {

IntegerArray trace(int periods) {
    std::vector<Integer> samples(200);
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double angle = 2 * std::numbers::pi * periods * double(i) / double(samples.size());
        samples[i] = Integer(128 + 100 * std::sin(angle));
    }
    return {1, samples};
}

}  // namespace

void expectAsKept(const char* name, const QImage& actual, const std::vector<QRect>& texts) {
    const QString kept = QString(ORVO_PICTURES "/%1.png").arg(name);
    if (std::getenv("ORVO_ACCEPT") != nullptr) actual.save(kept);
    const QImage reference = QImage(kept).convertToFormat(QImage::Format_RGB32);
    const QString left = QString(ORVO_OUTPUT "/%1-").arg(name);
    QDir().mkpath(ORVO_OUTPUT);
    actual.save(left + "actual.png");
    ASSERT_EQ(actual.size(), reference.size()) << "see " << qPrintable(left) << "actual.png";
    const Difference difference = differenceOf(actual, reference, texts);
    difference.picture.save(left + "difference.png");
    EXPECT_TRUE(isHinting(difference))
        << "text " << difference.inText << ", elsewhere " << difference.elsewhere
        << ", text moved by " << difference.shift << " and tinted by " << difference.tint
        << "; see " << qPrintable(left) << "*.png";
}

PicturesTest::PicturesTest() {
    panel_.Connected(true);
    panel_.MainPresence(true);
    panel_.PowerOn(true);
    for (Integer channel = 1; channel <= 4; ++channel) showChannel(channel);
    panel_.chkTest(1, true);
    panel_.AggiugiTesto(u"00:00:07  Connected");
    panel_.AggiugiTesto(u"00:01:12  Protection of channel 2");
    widget_.show();
    widget_.activateWindow();
    if (!QTest::qWaitForWindowActive(&widget_)) ADD_FAILURE() << "the window stays inactive";
}

void PicturesTest::showChannel(Integer channel) {
    const auto number = [channel](int first, int step) { return Integer(first + step * channel); };
    panel_.VPPower(channel, number(80, 1));
    panel_.VNPower(channel, number(70, 2));
    panel_.VPAux(channel, number(10, 1));
    panel_.VNAux(channel, number(14, 1));
    panel_.Volume(channel, number(0, -7));
    panel_.VolumeSlider(channel, number(0, -7));
    panel_.Temperature(channel, number(20, 23));
    panel_.Mute(channel, channel == 3);
    panel_.Protection(channel, channel == 2);
    panel_.Signal(channel, channel % 2 == 1);
    panel_.Ready(channel, true);
    panel_.Clock(channel, channel != 4);
    panel_.DisegnaFormaDOnda(channel, trace(channel));
}

QImage PicturesTest::picture(int tab) {
    store_.perform(Runtime::Deed::tab(Layout::kTabs.id, tab));
    widget_.flush();
    return widget_.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

}  // namespace Orvo::Window
