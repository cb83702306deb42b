#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

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
