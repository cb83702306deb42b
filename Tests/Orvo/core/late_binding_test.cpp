#include <array>
#include <cstring>

#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

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
