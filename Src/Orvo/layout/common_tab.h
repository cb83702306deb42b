#pragma once

#include <array>

#include "Orvo/layout/rows.h"

// The "Common" tab, and the tab control that holds everything.
namespace Orvo::Layout {

constexpr int kTwipsPerPixel = 15;    // at 96 dots per inch
constexpr int kPanelWidth = 10635;    // twips
constexpr int kPanelHeight = 6900;    // twips
constexpr int kTabStripHeight = 360;  // twips, of the tab control's height
constexpr int kScopeTabHeight = 180;  // twips, of a scope's height

// The tabs by number.
constexpr Integer kCommonTab = 0;
constexpr Integer kFirstPairTab = 1;
constexpr Integer kSecondPairTab = 2;

constexpr auto kTabCaptions =
    std::to_array<std::u16string_view>({u"Common", u"Ch1 + Ch2", u"Ch3 + Ch4"});

constexpr Row kRoot{"SSTab1", plain(Kind::tabs, kArial), u"", {-30, -60, 10695, 6975}};

constexpr Style title = label(kMicrogramma.sized(15.75), kCommonText);
constexpr Style commonHeading = label(kMicrogramma.sized(9.75), kCommonText);
constexpr Style commonLabel = label(kMicrogramma.sized(8.25), kCommonText);
constexpr Style testLabel = label(kMicrogramma.sized(6.75), kCommonText);
constexpr Style combo = plain(Kind::combo, kArial, rgb(224, 224, 224));
constexpr Style log = plain(Kind::list, kSerif, kBlack, kGreen);

constexpr Style pictureButton(Colour back) { return plain(Kind::button, kArial.bold(), back); }

// clang-format off
constexpr auto kCommonWidgets = std::to_array<Row>({
    // name               style                                   caption               left   top width height
    {"Image1",            image(Image::commonTab),                u"",                 {  30,  360, 10635, 6600}},
    {"Label59",           title,                                  u"Amplifier Tester", {3870,  780,  2985,  360}},
    {"Label54",           commonHeading,                          u"Settings",         { 660, 1560,  1005,  240}},
    {"Label58",           commonHeading,                          u"Status",           {2310, 1560,   810,  240}},
    {"Label60",           commonHeading,                          u"Internal data",    {5175, 1560,  1470,  240}},
    {"Label61",           commonHeading,                          u"Test",             {8850, 1560,   555,  240}},

    {"Label33",           commonLabel,                            u"Amp. Id",          { 930, 2490,   795,  255}},
    {"Combo1",            combo.disabled(),                       u"1",                { 930, 2760,   555,  330}},
    {"Label55",           commonLabel.hidden(),                   u"Serial Port",      { 930, 3420,   975,  255}},
    {"cmbSerialPort",     combo.hidden(),                         u"",                 { 900, 3720,   915,  330}},

    {"shpConnected",      greenLamp,                              u"",                 {2175, 2205,   255,  255}},
    {"Label35",           commonLabel,                            u"Link",             {2475, 2220,   405,  195}},
    {"shpOnOff",          greenLamp,                              u"",                 {2145, 2985,   255,  255}},
    {"Label34",           commonLabel,                            u"On/Off",           {2475, 3015,   720,  195}},
    {"Shape34",           greenLamp,                              u"",                 {2145, 3780,   255,  255}},
    {"Label57",           commonLabel,                            u"Mute",             {2475, 3795,   555,  195}},
    {"Shape28",           lamp(rgb(128, 0, 0), kRed),             u"",                 {2145, 4575,   255,  255}},
    {"Label36",           commonLabel,                            u"Protection",       {2475, 4590,  1110,  195}},

    {"List1",             log,                                    u"",                 {4110, 1920,  3630, 2985}},

    {"lblTest(0)",        testLabel,                              u"Temperature:",     {8280, 1950,  1215,  165}},
    {"lblTest(1)",        testLabel,                              u"Power Bus + :",    {8265, 2505,  1215,  165}},
    {"lblTest(2)",        testLabel,                              u"Power Bus - :",    {8340, 3030,  1155,  165}},
    {"lblTest(3)",        testLabel,                              u"Aux Bus + :",      {8520, 3570,  1005,  165}},
    {"lblTest(4)",        testLabel,                              u"Aux Bus - :",      {8595, 4125,   945,  165}},
    {"lblTest(5)",        testLabel,                              u"Mains pres.:",     {8475, 4680,  1065,  165}},
    {"lblTestResult(0)",  testLabel,                              u"-",                {9630, 1950,    75,  165}},
    {"lblTestResult(1)",  testLabel,                              u"-",                {9630, 2505,    75,  165}},
    {"lblTestResult(2)",  testLabel,                              u"-",                {9630, 3030,    75,  165}},
    {"lblTestResult(3)",  testLabel,                              u"-",                {9630, 3570,    75,  165}},
    {"lblTestResult(4)",  testLabel,                              u"-",                {9630, 4125,    75,  165}},
    {"lblTestResult(5)",  testLabel,                              u"-",                {9630, 4680,    75,  165}},

    {"cmdOnOff",          pictureButton(rgb(192, 192, 0)),        u"Power",            {6480, 5790,   915,  675}},
    {"Command17",         pictureButton(rgb(0, 192, 0)),          u"Mute",             {7695, 5790,   915,  675}},
    {"cmdReadInData",     pictureButton(rgb(0, 192, 192)),        u"Internal data",    {8910, 5790,   930,  675}},
    {"Command1",          button.hidden(),                        u"Reset Log File",   {4800, 5880,   735,  615}},
});
// clang-format on

}  // namespace Orvo::Layout
