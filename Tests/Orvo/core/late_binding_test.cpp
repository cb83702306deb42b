#include <array>
#include <cstring>

#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

using LateBinding = PanelTest;

TEST(MemberTable, IsDeclaredInItsOrderByTheInterface) {
#if defined(__GXX_ABI_VERSION) && defined(__x86_64__)
    // This ABI's pointer to a virtual function is 1 plus its offset in the virtual table; the
    // destructor's two entries come first.
    using I = MarvaneAssistantInterface;
    const auto slot = [](auto function) {
        std::array<std::ptrdiff_t, 2> words{};
        static_assert(sizeof words == sizeof function);
        std::memcpy(words.data(), &function, sizeof words);
        return (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*)) - 1;
    };
    EXPECT_EQ(slot(&I::TrimStr), 1);
    EXPECT_EQ(slot(static_cast<Boolean (I::*)(Integer)>(&I::chkTest)), 7);
    EXPECT_EQ(slot(&I::ClearTest), 9);
    EXPECT_EQ(slot(static_cast<void (I::*)(Integer)>(&I::IdDevice)), 15);
    EXPECT_EQ(slot(static_cast<Boolean (I::*)()>(&I::PowerOn)), 22);
    EXPECT_EQ(slot(&I::DisegnaFormaDOnda), 32);
    EXPECT_EQ(slot(static_cast<Boolean (I::*)()>(&I::ReadOnly)), 36);
#endif
    for (std::size_t i = 0; i < kMembers.size(); ++i) {
        EXPECT_EQ(kMembers[i].number, static_cast<int>(i) + 1) << kMembers[i].name;
    }
    for (std::size_t i = 0; i < kEvents.size(); ++i) {
        EXPECT_EQ(kEvents[i].dispatchId, static_cast<Long>(i) + 1) << kEvents[i].name;
    }
}

TEST_F(LateBinding, FindsMembersWithoutRegardToCase) {
    EXPECT_EQ(dispatchIdOf("vppower"), 0x6803000F);
    EXPECT_EQ(dispatchIdOf("TRIMSTR"), 0x60030015);
    EXPECT_EQ(dispatchIdOf("Trim"), std::nullopt);
}

TEST_F(LateBinding, CallsEveryMemberAsADirectCallWould) {
    const auto invoke = [this](const char* name, MemberKind kind, std::vector<Value> arguments) {
        return panel_.invoke(dispatchIdOf(name).value(), kind, arguments);
    };
    using enum MemberKind;
    EXPECT_FALSE(invoke("Mute", let, {Integer{2}, Boolean(true)}).error);
    EXPECT_TRUE(isLit("Shape15"));
    EXPECT_EQ(std::get<Boolean>(invoke("Mute", get, {Integer{2}}).value), kTrue);
    EXPECT_EQ(std::get<String>(invoke("TrimStr", method, {String(u"ab\0c", 4)}).value), u"ab");
    EXPECT_FALSE(invoke("VPPower", let, {String(u" 2 "), 122.5}).error);
    EXPECT_EQ(digits({"LED21", "LED22", "LED29"}), "122");
    EXPECT_FALSE(invoke("ReadOnly", let, {Boolean(Integer{1})}).error);
    EXPECT_EQ(std::get<Boolean>(invoke("ReadOnly", get, {}).value), Boolean(Integer{1}));
    EXPECT_EQ(invoke("chkTest", get, {Integer{6}}).error->description(),
              "Control array element '6' doesn't exist");
}

TEST_F(LateBinding, RefusesWhatDoesNotFit) {
    const struct {
        const char* label;
        Long dispatchId;
        MemberKind kind;
        std::vector<Value> arguments;
        Long error;
    } kRows[] = {
        {"unknown member", 0x68030099, MemberKind::get, {}, 438},
        {"a method as a property", 0x60030015, MemberKind::get, {}, 438},
        {"a property as a method", 0x68030001, MemberKind::method, {Integer{1}}, 438},
        {"write-only", 0x68030013, MemberKind::get, {}, 394},
        {"read-only", 0x68030005, MemberKind::let, {Integer{1}, Boolean(true)}, 383},
        {"too few", 0x68030001, MemberKind::let, {Integer{1}}, 450},
        {"too many", 0x60030018, MemberKind::method, {Integer{1}}, 450},
        {"out of range", 0x68030007, MemberKind::let, {Integer{1}, Long{32768}}, 6},
        {"no number", 0x68030007, MemberKind::let, {Integer{1}, String(u"loud")}, 13},
        {"no array", 0x60030043, MemberKind::method, {Integer{1}, Integer{1}}, 13},
        {"an array", 0x68030007, MemberKind::let, {Integer{1}, IntegerArray()}, 13},
        {"the member's own", 0x68030007, MemberKind::let, {Integer{1}, Integer{-32768}}, 6},
    };
    for (const auto& row : kRows) {
        const auto result = panel_.invoke(row.dispatchId, row.kind, row.arguments);
        ASSERT_TRUE(result.error) << row.label;
        EXPECT_EQ(result.error->number(), row.error) << row.label;
    }
}

TEST(Conversion, FollowsTheComponentModel) {
    const struct {
        Value from;
        ValueType type;
        Value to;
    } kRows[] = {
        {2.5, ValueType::integer, Integer{2}},
        {3.5, ValueType::integer, Integer{4}},
        {-0.5, ValueType::longInteger, Long{0}},
        {Boolean(true), ValueType::integer, Integer{-1}},
        {std::monostate{}, ValueType::integer, Integer{0}},
        {String(u"-1.5e2"), ValueType::integer, Integer{-150}},
        {Integer{1}, ValueType::boolean, Boolean(true)},
        {Boolean(Integer{1}), ValueType::boolean, Boolean(Integer{1})},
        {String(u"FALSE"), ValueType::boolean, Boolean(false)},
        {String(u"0.1"), ValueType::boolean, Boolean(true)},
        {Long{-70000}, ValueType::string, String(u"-70000")},
        {Long{100000}, ValueType::string, String(u"100000")},
        {-2e6, ValueType::string, String(u"-2000000")},
        {0.25, ValueType::string, String(u"0.25")},
        {Boolean(true), ValueType::string, String(u"True")},
        {std::monostate{}, ValueType::string, String()},
    };
    int number = 0;
    for (const auto& row : kRows) {
        EXPECT_EQ(convert(row.from, row.type), row.to) << "row " << number;
        ++number;
    }
}

}  // namespace
}  // namespace Orvo::Tests
