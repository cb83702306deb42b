#include "Orvo/ports/queue_listing.h"

#include <gtest/gtest.h>

#include "Support/spooler.h"

namespace Orvo::Tests {
namespace {

using Lines = std::vector<std::string>;

std::string counted(const std::string& text) {
    return std::string{char(text.size() >> 8U), char(text.size())} + text;
}

std::string attribute(char tag, const std::string& name, const std::string& value) {
    return tag + counted(name) + counted(value);
}

std::string answer(unsigned status, const std::string& groups) {
    return std::string{2, 0, char(status >> 8U), char(status), 0, 0, 0, 1} + groups + '\3';
}

const std::string kName = attribute('\x42', "printer-name", "bench");
const std::string kInLanguage =
    attribute('\x35', "printer-info", counted("de") + counted("Prüfplatz €"));
const std::string kOverNetwork = attribute('\x45', "device-uri", "ipp://192.0.2.1/");
const std::string kBench = "bench, ipp, Prüfplatz €, 9";
const std::string kTwoQueues =
    answer(0, '\1' + attribute('\x47', "attributes-charset", "utf-8") + '\4' + kName + kInLanguage +
                  kOverNetwork + '\4' + attribute('\x42', "printer-name", "label"));

TEST(QueueListingTest, ReadsWhatIsOfUse) {
    struct Case {
        const char* label;
        std::string answer;
        Lines ports;
    };
    const std::string kMemberName = attribute('\x4a', "", "printer-name");
    const std::string kCollection = attribute('\x34', "", "");
    std::string depth = '\4' + kName + attribute('\x34', "a", "");
    for (int i = 0; i < 50'000; ++i) {
        depth.append(kMemberName).append(kCollection);
    }
    std::string elsewhere = '\2' + kName;
    elsewhere.append("\5").append(kName);
    for (const auto& [label, answer, ports] :
         {Case{"two queues", kTwoQueues, {kBench, "label, , , 1"}},
          Case{"collections in collections", answer(0, depth), {"bench, , , 1"}},
          Case{"other groups", answer(0, elsewhere), {}},
          Case{"groups of nothing", answer(0, std::string(50'000, '\4')), {}},
          Case{"no queues", answer(0x0406, '\4' + kName), {}}}) {
        const auto queues = Runtime::queuesIn(answer);
        ASSERT_TRUE(queues) << label;
        EXPECT_EQ(shown(*queues), ports) << label;
    }
}

TEST(QueueListingTest, IsNoneWhenCutOffAnywhere) {
    for (std::size_t size = 0; size < kTwoQueues.size(); ++size) {
        EXPECT_FALSE(Runtime::queuesIn(kTwoQueues.substr(0, size))) << size;
    }
}

TEST(QueueListingTest, IsNoneWhenRefusedOrInconsistent) {
    EXPECT_FALSE(Runtime::queuesIn(answer(0x0401, '\4' + kName)));
    const std::string longer = counted("de") + std::string{0, 9} + "short";
    EXPECT_FALSE(Runtime::queuesIn(answer(0, '\4' + attribute('\x36', "printer-info", longer))));
}

}  // namespace
}  // namespace Orvo::Tests
