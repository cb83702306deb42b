#pragma once

#include <array>
#include <span>
#include <string_view>

#include "Orvo/layout/rows.h"

// The two pair tabs, "Ch1 + Ch2" and "Ch3 + Ch4", which are built alike.
namespace Orvo::Layout {

constexpr Style pairLabel = label(kArial, kPairText);
constexpr Style pairHeading = label(kArial.sized(9.75).italic().underlined(), kPairText);
constexpr Style monitorHeading = label(kArial.sized(12), kPairText);
constexpr Style signalCaption = label(kArial.italic(), kPairText);
constexpr Style channelCaption = label(kArial, kBlack);
constexpr Style sign = label(kArial, kRed);
constexpr Style unit = label(kArial.sized(6.75), kRed);
constexpr Style startButton = plain(Kind::button, kArial.bold());
constexpr Style scope = plain(Kind::tabs, kArial.sized(6.75));
constexpr Style led = digit(rgb(255, 0, 0), rgb(64, 0, 0));
constexpr Style temperatureLed = digit(rgb(192, 0, 0), rgb(128, 128, 128));
constexpr Style whiteDot = dot(kWhite);
constexpr Style sliderOutline = rectangle(kActiveTitleText);
constexpr Style blackFrame = frame(kBlack);
constexpr Style signalFrame = frame(rgb(77, 74, 67));
constexpr Style destinationFrame = frame(rgb(41, 22, 111));
constexpr Style stripFrame = frame(rgb(128, 128, 128));
constexpr Style signalOption = option(signalFrame.back);
constexpr Style destinationOption = option(destinationFrame.back);

// clang-format off
constexpr auto kPairWidgets = std::to_array<TwinRow>({
    // pair 12           pair 34              style                 caption                      left   top width height
    {"Image4",           "Image7",            image(Image::pairTab), u"",                       {  30,  360, 10635, 6600}},
    {"Label1",           "Label31",           pairHeading,          u"Wave generator",          { 390,  570,  1425,  240}, twin().width(1365)},
    {"Label9(0)",        "Label9(1)",         monitorHeading,       u"Channels 1-2    Monitor", {4290,  390,  2610,  285}, twin().caption(u"Channels 3-4    Monitor")},
    {"Label75",          "Label38",           pairLabel,            u"Amp Id: ",                {8400,  450,   585,  210}},
    {"lblAmpId12",       "lblAmpId34",        pairLabel,            u"1",                       {9030,  450,    90,  210}},
    {"Label46",          "Label45",           pairLabel,            u"Status:",                 {8415,  690,   510,  210}},
    {"lblConnected12",   "lblConnected34",    pairLabel,            u"Connected",               {9030,  690,   780,  210}},

    {"Frame12",          "Frame13",           signalFrame,          u"",                        { 360,  960,  1215, 1155}},
    {"cmdGo12",          "cmdGo34",           startButton,          u"Start",                   {1200,  960,   555,  285}},
    {"Frame11",          "Frame14",           destinationFrame,     u"",                        {1560, 2820,   195, 1335}, twin().height(1155)},

    {"Label20",          "Label11",           pairLabel.wrapped(),  u"Thermal prot. test",      {2310, 3660,  1035,  390}},
    {"Shape8",           "Shape43",           sliderOutline,        u"",                        {2550, 2610,   435, 1035}},
    {"ZelvinSlider3",    "ZelvinSlider6",     slider,               u"",                        {2580, 2640,   375,  975}},

    {"Label65",          "Label27",           pairLabel.wrapped(),  u"Signal presence",         {3375,  960,   825,  420}},
    {"Shape22",          "Shape19",           greenLamp,            u"",                        {3640, 1410,   255,  165}, twin().left(3660)},
    {"Label4",           "Label77",           pairLabel.wrapped(),  u"Signal presence",         {3330, 5430,   915,  420}, twin().left(3375).width(825)},
    {"Shape23",          "Shape24",           greenLamp,            u"",                        {3640, 5280,   255,  165}, twin().left(3630)},
    {"Label56",          "Label32",           pairHeading,          u"Amplifier",               {5970, 1500,   765,  240}},
    {"Label17",          "Label80",           channelCaption,       u"Ch. 1",                   {5460, 1950,   405,  210}, twin().caption(u"Ch. 3")},
    {"Label78",          "Label81",           channelCaption,       u"Ch. 2",                   {5505, 4650,   405,  210}, twin().caption(u"Ch. 4")},
    {"Label64",          "Label37",           pairHeading,          u"Power supply",            {5010, 5970,  1140,  240}},

    {"Frame6",           "Frame4",            blackFrame,           u"",                        {2280,  870,  1005, 1575}},
    {"Frame7",           "Frame3",            blackFrame,           u"",                        {2280, 4230,  1005, 1575}},
    {"Frame10",          "Frame5",            stripFrame,           u"",                        {4320,  960,  2620,  465}},
    {"SSTScope1",        "SSTScope3",         scope,                u"Oscilloscope",            {7290, 1020,  2985, 1665}},
    {"SSTScope2",        "SSTScope4",         scope,                u"Oscilloscope",            {7290, 4110,  2985, 1665}},
    {"Frame8",           "Frame1(0)",         blackFrame,           u"",                        {7350, 3075,  1695,  290}},
    {"Frame9",           "Frame2",            blackFrame,           u"",                        {7350, 3510,  1695,  290}},
    {"Label52",          "Label13",           pairLabel,            u"Power Bus",               {9210, 3090,   975,  255}},
    {"Label530",         "Label12",           pairLabel,            u"Aux Bus",                 {9210, 3540,   630,  210}},

    {"Label23",          "Label6",            pairLabel.wrapped(),  u"Mains presence",          { 630, 5070,   705,  420}},
    {"shpMainPresence12","shpMainPresence34", greenLamp,            u"",                        { 810, 5490,   255,  165}},
    {"Label21",          "Label2",            pairLabel,            u"On/Off",                  {1500, 5670,   585,  210}},
    {"chkOnOff12",       "chkOnOff34",        powerCheck,           u"",                        {1440, 5910,   705,  495}},
    {"chkOnOff12Old",    "chkOnOff34Old",     powerCheck.hidden(),  u"",                        {1440, 5910,   705,  495}},
    {"tmrVirtualTemp12", "tmrVirtualTemp34",  timer,                u"",                        {   0,    0,     0,    0}},

    {"Shape1",           "Shape30",           whiteDot,             u"",                        {1320, 3300,    75,  135}},
    {"lin1PSelect",      "lin3PSelect",       line,                 u"",                        {1350, 3360,  1590, 2940}},
    {"lin1NSelect",      "lin3NSelect",       line,                 u"",                        {1350, 3360,  1620, 3210}},
    {"lin2PSelect",      "lin4Pselect",       line,                 u"",                        {1350, 3360,  1620, 3480}},
    {"lin2NSelect",      "lin4NSelect",       line,                 u"",                        {1590, 3750,  1350, 3360}},
    {"lin1",             "lin3",              line,                 u"",                        {6120, 2040,  7200, 2040}},
    {"lin2",             "Lin4",              line,                 u"",                        {6150, 4740,  7200, 4740}},
    {"Line1",            "Line4",             line,                 u"",                        { 630, 2310,   630, 3360}},
    {"Line8",            "Line5",             line,                 u"",                        { 630, 3360,  1320, 3360}},
});

constexpr auto kSignalOptions = std::to_array<TwinRow>({
    {"opt100hz_ch12",    "opt100hz_Ch34",     signalOption,            u"",            {  0,   0,  195, 195}},
    {"opt1000hz_ch12",   "opt1000hz_Ch34",    signalOption.selected(), u"",            {  0, 240,  195, 195}},
    {"opt10000hz_ch12",  "opt10000hz_Ch34",   signalOption,            u"",            {  0, 480,  195, 195}},
    {"optEIAJ_ch12",     "optEIAJ_Ch34",      signalOption,            u"",            {  0, 720,  195, 195}},
    {"optLineIn12",      "optLineIn34",       signalOption,            u"",            {  0, 960,  195, 195}},
    {"Lbl(0)",           "Lbl(9)",            signalCaption,           u"100Hz",       {240,   0,  600, 195}},
    {"Lbl(1)",           "Lbl(8)",            signalCaption,           u"1000Hz",      {240, 240,  600, 195}},
    {"Lbl(2)",           "Lbl(7)",            signalCaption,           u"10KHz",       {240, 480,  600, 195}},
    {"Lbl(3)",           "Lbl(6)",            signalCaption,           u"EIAJ (1KHz)", {240, 720,  960, 195}},
    {"Lbl(4)",           "Lbl(5)",            signalCaption,           u"LINE IN",     {240, 960,  960, 195}},
});

constexpr auto kDestinationOptions = std::to_array<TwinRow>({
    {"optP1",            "optP3",             destinationOption,    u"",                        {   0,    0,   195,  255}},
    {"optN1",            "optN3",             destinationOption,    u"",                        {   0,  270,   195,  255}},
    {"optP2",            "optP4",             destinationOption,    u"",                        {   0,  540,   195,  255}},
    {"optN2",            "optN4",             destinationOption,    u"",                        {   0,  810,   195,  255}},
});

constexpr auto kStatusStrip = std::to_array<TwinRow>({
    {"Label47",          "Label79",           pairLabel,            u"Temp",                    {  60,    0,   390,  210}},
    {"ledTemp12(0)",     "ledTemp34(0)",      temperatureLed,       u"",                        {  30,  210,   225,  225}},
    {"ledTemp12(1)",     "ledTemp34(1)",      temperatureLed,       u"",                        { 210,  210,   225,  225}},
    {"ledTemp12(2)",     "ledTemp34(2)",      temperatureLed,       u"",                        { 390,  210,   225,  225}},
    {"Label51",          "Label16",           pairLabel,            u"Clock",                   { 555,    0,   390,  210}},
    {"Shape6",           "Shape4",            greenLamp,            u"",                        { 645,  240,   255,  165}},
    {"Label48",          "Label14",           pairLabel,            u"Ready",                   {1050,    0,   465,  210}},
    {"Shape17",          "Shape12",           greenLamp,            u"",                        {1155,  240,   255,  165}},
    {"Label50",          "Label24",           pairLabel,            u"Prot 1",                  {1635,    0,   420,  210}},
    {"Shape18",          "Shape13",           redLamp,              u"",                        {1665,  240,   255,  165}},
    {"Label49",          "Label63",           pairLabel,            u"Prot 2",                  {2160,    0,   420,  210}},
    {"Shape21",          "Shape14",           redLamp,              u"",                        {2175,  240,   255,  165}},
});

constexpr auto kUpperScope = std::to_array<TwinRow>({
    {"Picture1",         "Picture3",          picture,              u"",                        {   0,  180,  2985, 1485}},
});

constexpr auto kLowerScope = std::to_array<TwinRow>({
    {"Picture2",         "Picture4",          picture,              u"",                        {   0,  180,  2985, 1485}},
});

constexpr int kLowerBlockDrop = 30;  // twips

constexpr auto kVolumeBlock = std::to_array<VolumeRow>({
    // channel 1        2                3                4                 style          caption  left   top width height
    {{"Label76",       "Label30",       "Label29",       "Label10"},        sign,          u"-",    { 30,    0,   60,  210}},
    {{"LED20",         "LED18",         "LED9",          "LED11"},          led,           u"",     { 90,   30,  225,  225}},
    {{"LED19",         "LED17",         "LED10",         "LED12"},          led,           u"",     {270,   30,  225,  225}},
    {{"Label5",        "Label8",        "Label66",       "Label67"},        unit,          u"dB",   {450,   60,  165,  180}},
    {{"Shape2",        "Shape600",      "Shape37",       "Shape5"},         sliderOutline, u"",     { 60,  270,  435, 1035}},
    {{"ZelvinSlider1", "ZelvinSlider2", "ZelvinSlider4", "ZelvinSlider5"},  slider,        u"",     { 90,  300,  375,  975}},
    {{"Shape16",       "Shape15",       "Shape11",       "Shape10"},        greenLamp,     u"",     {660,  810,  255,  195}, 30},
    {{"Command12",     "Command11",     "Command14",     "Command18"},      button,        u"",     {690, 1110,  195,  195}, 30},
    {{"Label3",        "Label18",       "Label62",       "Label28"},        pairLabel,     u"Vol",  {150, 1290,  255,  210}},
    {{"Label7",        "Label19",       "Label15",       "Label22"},        pairLabel,     u"Mute", {570, 1290,  345,  210}},
});

constexpr auto kRailReadout = std::to_array<RailRow>({
    // power 12    aux 12      power 34    aux 34           style  power  aux    left  top width height
    {{"Label53",   "Label69",  "Label71",  "Label73"},      sign,  u"+",  u"+",  {  30,  30,  90, 210}},
    {{"LED1",      "LED5",     "LED21",    "LED13"},        led,   u"",   u"",   { 120,  30, 225, 225}},
    {{"LED2",      "LED6",     "LED22",    "LED14"},        led,   u"",   u"",   { 300,  30, 225, 225}},
    {{"LED25",     "LED27",    "LED29",    "LED31"},        led,   u"",   u"",   { 480,  30, 225, 225}},
    {{"Label26",   "Label40",  "Label44",  "Label42"},      sign,  u"V ", u"V",  { 660,  30, 120, 210}},
    {{"Label68",   "Label70",  "Label72",  "Label74"},      sign,  u"-",  u"-",  { 930,  30,  60, 210}},
    {{"LED3",      "LED7",     "LED23",    "LED15"},        led,   u"",   u"",   { 990,  30, 225, 225}},
    {{"LED4",      "LED8",     "LED24",    "LED16"},        led,   u"",   u"",   {1170,  30, 225, 225}},
    {{"LED26",     "LED28",    "LED30",    "LED32"},        led,   u"",   u"",   {1350,  30, 225, 225}},
    {{"Label25",   "Label39",  "Label43",  "Label41"},      sign,  u"V ", u"V",  {1530,  30, 120, 210}},
});

constexpr auto kRoutes = std::to_array<RouteRow>({
    {{"lin1p(0)", "lin1p(1)", "lin1p(2)", "lin1p(3)", "lin1p(4)"}, {"lin3p(2)", "lin3p(3)", "lin3p(4)", "lin3p(0)", "lin3p(1)"},
     {{{3810, 1860, 5340, 1860}, {3330, 1860, 3720, 1860}, {2010, 1860, 2250, 1860}, {2010, 2940, 2010, 1860}, {1680, 2940, 2010, 2940}}}},
    {{"lin1n(0)", "lin1n(1)", "lin1n(2)", "lin1n(3)", "lin1n(4)"}, {"lin3n(2)", "lin3n(3)", "lin3n(4)", "lin3n(0)", "lin3n(1)"},
     {{{3840, 2250, 5340, 2250}, {3330, 2250, 3720, 2250}, {2100, 2250, 2250, 2250}, {2100, 2250, 2100, 3210}, {2100, 3210, 1650, 3210}}}},
    {{"lin2p(0)", "lin2p(1)", "lin2p(2)", "lin2p(3)", "lin2p(4)"}, {"lin4p(2)", "lin4p(3)", "lin4p(4)", "lin4p(0)", "lin4p(1)"},
     {{{3810, 4560, 5400, 4560}, {3300, 4560, 3720, 4560}, {2100, 4560, 2250, 4560}, {2100, 3480, 2100, 4560}, {1680, 3480, 2100, 3480}}}},
    {{"lin2n(0)", "lin2n(1)", "lin2n(2)", "lin2n(3)", "lin2n(4)"}, {"lin4n(2)", "lin4n(3)", "lin4n(4)", "lin4n(0)", "lin4n(1)"},
     {{{3840, 4950, 5370, 4950}, {3300, 4950, 3720, 4950}, {2010, 4950, 2250, 4950}, {2010, 3750, 2010, 4950}, {1650, 3750, 2010, 3750}}}, 5400},
});
// clang-format on

/// What stands inside a container of the pair tabs and its twin.
struct TwinSection {
    std::array<std::string_view, 2> containers;
    std::span<const TwinRow> rows;
};

constexpr auto kTwinSections = std::to_array<TwinSection>({
    {{"Frame12", "Frame13"}, kSignalOptions},
    {{"Frame11", "Frame14"}, kDestinationOptions},
    {{"Frame10", "Frame5"}, kStatusStrip},
    {{"SSTScope1", "SSTScope3"}, kUpperScope},
    {{"SSTScope2", "SSTScope4"}, kLowerScope},
});

/// The containers of the volume blocks and of the rail readouts, in the order of their rows.
constexpr std::array<std::string_view, 4> kVolumeFrames{"Frame6", "Frame7", "Frame4", "Frame3"};
constexpr std::array<std::string_view, 4> kRailFrames{"Frame8", "Frame9", "Frame1(0)", "Frame2"};

}  // namespace Orvo::Layout
