#include "Orvo/core/call_listener.h"

#include "Support/bench.h"

namespace Orvo::Tests {
namespace {

/// Notes what it is told, calls and results alike.
class Notes final : public CallListener {
public:
    void called(const Member& member, std::span<const Value> arguments) override {
        note("called", member);
        values.assign(arguments.begin(), arguments.end());
    }
    void returned(const Member& member, const Value& value) override {
        note("returned", member);
        result = value;
    }
    void failed(const Member& member, const Error& error) override {
        note("failed", member);
        lines.back() += ": " + std::to_string(error.number());
    }

    std::vector<std::string> lines;
    std::vector<Value> values;
    Value result;

private:
    void note(const char* what, const Member& member) {
        lines.push_back(what + (' ' + std::to_string(member.number)));
    }
};

std::vector<Value> someArguments(const Member& member) {
    std::vector<Value> arguments;
    for (const Parameter& parameter : member.parameters()) {
        const bool isArray = parameter.type == ValueType::array;
        arguments.push_back(isArray ? IntegerArray(1, {1, 2})
                                    : convert(Integer{1}, parameter.type));
    }
    if (member.name == "LPSTRtoSTRING") arguments = {Long{0}};
    return arguments;
}

class CallListenerTest : public PanelTest {
protected:
    Notes notes_;
    Connection listening_ = panel_.listen(notes_);
};

TEST_F(CallListenerTest, HearsEachMemberOnceDirectOrLateBound) {
    for (const Member& member : kMembers) {
        const std::string number = std::to_string(member.number);
        const Lines once{"called " + number, "returned " + number};
        const auto arguments = someArguments(member);
        notes_.lines.clear();
        const Value result = member.call(panel_, arguments);
        EXPECT_EQ(notes_.lines, once) << member.name;
        EXPECT_EQ(notes_.values, arguments) << member.name;
        EXPECT_EQ(notes_.result, result) << member.name;
        notes_.lines.clear();
        panel_.invoke(member.dispatchId, member.kind, arguments);
        EXPECT_EQ(notes_.lines, once) << member.name << ", late-bound";
    }
}

TEST_F(CallListenerTest, HearsOfErrorsButNotOfCallsThatReachNoMember) {
    EXPECT_THROW(panel_.chkTest(6, true), Error);
    EXPECT_EQ(notes_.lines, Lines({"called 6", "failed 6: 340"}));
    notes_.lines.clear();
    constexpr Long kMute = memberNamed<Integer>("Mute").dispatchId;
    panel_.invoke(kMute, MemberKind::get);
    panel_.invoke(kMute, MemberKind::get, std::array<Value, 1>{String(u"none")});
    panel_.invoke(1, MemberKind::method);
    EXPECT_EQ(notes_.lines, Lines());
}

TEST_F(CallListenerTest, HearsNothingOnceItsConnectionHasEnded) {
    listening_.disconnect();
    panel_.Mute(1, true);
    EXPECT_EQ(notes_.lines, Lines());
}

}  // namespace
}  // namespace Orvo::Tests
