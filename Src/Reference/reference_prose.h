#pragma once

#include <string_view>

// What the reference pages say between their tables.
namespace Orvo::Script {

constexpr std::string_view kScriptIntroduction = R"(# Panel script

<!-- Generated from the tables: cmake --build BUILD --target orvo-make-reference -->

A line language that plays both sides of the panel: the host that calls its members, and the person
in front of it.

- `orvo-console [FILE]` runs it on the in-memory runtime: no window, and a clock that only `wait`
  moves. Without FILE it reads standard input; at a terminal it asks for commands, edits and
  completes them, and knows `help` and `help NAME` besides.
- `marvane-manager --script FILE` runs it on the window. With `--overwrite`, `shot` may replace files.

Both give the same answers, byte for byte, for every command that both know. A script ends at the
first answer with `?`, with status 1 and the place on standard error; with `--keep-going` it goes
on.

## Lines

One command a line, UTF-8. Blanks or tabs separate words. A line that is empty or begins with `#` is
passed over. A carriage return at the end of a line belongs to the line break.

| word | written |
| --- | --- |
| String | `"in double quotes"` with the escapes `\"`, `\\`, `\n`, `\t` and `\uXXXX` (a UTF-16 code unit); without quotes when it consists of letters A to Z and a to z, digits, `.`, `-`, `_`, `:` and `/` |
| Integer, Long | decimal, or hexadecimal after `0x`; with an optional sign. Hexadecimal digits may also be the bits of a negative number: `0xFFFF` is the Integer -1 |
| Boolean | `true` (-1), `false` (0), or any Integer, which is passed on as it is |
| Integer array | `[10 20 30]` indexed from 1, `LOW:[10 20 30]` indexed from LOW (`LOW:[]` has a dimension but no element), `[]` without a dimension |
| widget | its name in the layout, `NAME(INDEX)` for an element of a widget array |
| member | its name, in capitals or not |
| event | its name |

## Answers

Every command is answered by the lines that arise while it runs, in that order, and then by one
closing line.

| closing line | meaning |
| --- | --- |
| `ok` | done; no result |
| `= VALUE` | done, with this result |
| `! NUMBER DESCRIPTION` | the panel's run-time error reached the caller, or was the first to end a handler that a person's action or a timer started |
| `? TEXT` | not understood, or not possible as the panel stands; nothing was done |

| line before it | meaning |
| --- | --- |
| `event NAME ARGUMENT …` | the panel raised an event |
| `prompt "TEXT" "TITLE" -> ANSWER` | an input prompt was shown; ANSWER is the String typed, or `cancel` |
| `- …` | one row of a listing |

Integers, Longs and Booleans print as decimal numbers, Strings in double quotes with the escapes
above (control characters as `\uXXXX`, also a surrogate that has no partner), colours as `R,G,B`,
single-precision numbers in the shortest decimal form that reads back the same.

What a handler set with `on` does is answered in the same way, indented by two blanks for each level
of nesting, right under the event that started it. Handlers that start one another more than 64
levels deep end with `! 28 Out of stack space`, and no further handler runs for that command. What
`meanwhile` has queued is answered likewise, under the event or above the prompt in whose midst it
is carried out.

)";

constexpr std::string_view kHostIntroduction = R"(## The host's side

A member that exists, but not with this kind, is the panel's error, not a `?`. `invoke` passes a
number in the narrowest type that holds it, `0xFFFF` being 65535 there, and `true`, `false`, a
String or an array as they are; a 16-bit number for a Boolean is passed on unchanged.

A command that `on` is given has to be understood at that time. A handler that `off` or `new`
forgets while its event is being raised doesn't run any more; one that is added then runs from the
next event on. All handlers and all that is queued together have 16 MiB of memory; error 7, Out of
memory, beyond.

)";

constexpr std::string_view kPersonIntroduction = R"(## The person's side

A widget that is hidden or disabled, by itself or through a container, ignores the input, and the
command closes with `ok`. Which tab is in front doesn't matter. Input that a widget of this kind
can't get at all, such as `slide` on a button, is a `?`.

`answer`, `meanwhile` and `resume` fill one queue, in which a recording keeps what happened in the
midst of a command: host's calls in a handler, and whatever anyone did while a prompt was open. An
event, after its handlers, carries out what is queued, up to the next `resume`, which it takes too,
or up to the next answer, which it leaves; a prompt, up to the next answer, which it gets.

```
meanwhile let IdDevice 7
answer "530284"
meanwhile wait 250
answer cancel
key List1 18
```

A recording is written as things happen, the action first. It therefore begins with `chronological`,
which turns that round for a script: a command waits until all that is queued below it is queued, so
it is answered after that. A last line without a line break was cut off then, and is passed over.

```
chronological
key List1 18
meanwhile let IdDevice 7
answer "530284"
```

Next comes what brings a fresh panel to what this one showed when the recording began, traces and the
time to the timers' next ticks included. It is derived from the state of the widgets, and tried on a
fresh panel; what can't be brought there is told of in a comment, `# not brought here: WIDGET …`, with
what `show` said of it.

)";

constexpr std::string_view kLookingIntroduction = R"(## Looking

)";

constexpr std::string_view kScriptEnd =
    R"(`show` prints the kind, then the widget's own `visible` state (not for timers and the screen), then:

| kind | properties, in this order |
| --- | --- |
| `label` | `caption="…" color=R,G,B` |
| `shape` | `fill=solid` or `fill=transparent` |
| `line` | `color=R,G,B` |
| `option` | `value=true\|false enabled=true\|false` |
| `check` | `value=0\|1 enabled=true\|false` |
| `button` | `enabled=true\|false` |
| `combo` | `text="…" items=COUNT enabled=true\|false` |
| `list` | `items=COUNT` |
| `timer` | `enabled=true\|false interval=MILLISECONDS` |
| `picture` | `width=W height=H` (the drawing area, in pixels) |
| `tabs` | `tab=NUMBER enabled=true,true,true` (one for each tab) |
| `digit` | `value=0` to `value=9`, or `value=none` before the first |
| `slider` | `position=P maximum=M enabled=true\|false held=true\|false` |
| `frame`, `image` | nothing more |

`show Screen` prints `screen pointer=NUMBER`: 0 the default, 11 the hourglass.

The rows of `drawing` are `- line X1,Y1 X2,Y2 R,G,B` and `- text X,Y "TEXT" R,G,B SIZE`.

## An example

```
on Mute let Mute 1 true
ok
click Command12
event Mute 1
  ok
ok
get Mute 1
= -1
let VNPower 1 -5
! 13 Type mismatch
show LED3
= digit visible=true value=0
```

## In a replay

A session that the window replays takes its time, and the window answers meanwhile. It may not use
`shot`, also where it stands in an `on`. A line above 1560 KiB ends it, and so does a handler or a
prompt in whose midst more is done than the window has time for, and what there is no room for in
its 16 MiB, the message log included.

## Over a link

A device or a program at the other end of a link may send only the commands of the host's side. All
others are answered with `?`, also where they stand in an `on`: whoever drives the panel from outside
can neither press its buttons nor answer its prompts.

`new` gives a fresh panel there too, in the same window. What `on` has said is forgotten then, and
when the link breaks. A pipe carries commands only. [One table](link.md) has all that a device may do
and may not.
)";

constexpr std::string_view kInterfaceIntroduction = R"(# The panel's interface

<!-- Generated from the tables: cmake --build BUILD --target orvo-make-reference -->

A late-bound call passes parameters by reference, unless the table says otherwise, and they are only
read. It has these errors besides a member's own: 6 when a number leaves the parameter's range, 13
when a value can't be converted to its type, 383 for a property that can only be read, 394 for one
that can only be written, 438 when there is no such member, 450 for a wrong number of arguments.

## Members

)";

}  // namespace Orvo::Script
