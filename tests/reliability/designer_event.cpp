#include "reliability/designer_event.h"

namespace morvel::reliability {

namespace {

// Quoted, with bytes that are not printable ASCII written as \xNN so a reproduction is exact.
std::string quoted(const std::string& text) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    std::string out = "\"";
    for (char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte >= 0x7F || c == '"' || c == '\\') {
            out += "\\x";
            out += kHex[byte >> 4U];
            out += kHex[byte & 0xFU];
        } else {
            out += c;
        }
    }
    return out + "\"";
}

std::string answersOf(const Event& event) {
    if (event.answers.empty())
        return "";
    std::string out = " answering";
    for (const std::string& answer : event.answers)
        out += " " + (answer.starts_with('?') ? answer.substr(1) : quoted(answer));
    return out;
}

const char* typingName(Event::Typing typing) {
    switch (typing) {
    case Event::Typing::Replace:
        return "replace with";
    case Event::Typing::Append:
        return "append";
    case Event::Typing::Backspace:
        return "backspace";
    }
    return "";
}

} // namespace

std::string describe(const Event& event) {
    using Kind = Event::Kind;
    const std::string n = std::to_string(event.number);
    const std::string n2 = std::to_string(event.number2);
    switch (event.kind) {
    case Kind::ClickRow:
        return "click row " + n;
    case Kind::Type:
        return "type into " + event.target + ": " + typingName(event.typing) +
               (event.typing == Event::Typing::Backspace ? "" : " " + quoted(event.text));
    case Kind::Pick:
        return "pick entry " + n + " of " + event.target;
    case Kind::ClickCheck:
        return "click " + event.target;
    case Kind::ClickTab:
        return "click tab " + n;
    case Kind::Focus:
        return "focus " + event.target;
    case Kind::Find:
        return "cmdFind" + answersOf(event);
    case Kind::FindNext:
        return "cmdFindNext" + answersOf(event);
    case Kind::EditList:
    case Kind::EditLocales: {
        std::string out = event.kind == Kind::EditList ? "cmdList {" : "cmdLocale {";
        for (const Event& step : event.steps)
            out += " " + describe(step) + ";";
        return out + " }";
    }
    case Kind::Resize:
        return "resize to " + n + " x " + n2;
    case Kind::HostAdd:
        return "host adds the field of seed " + std::to_string(event.seed) +
               (event.number2 == 0 ? "" : " at " + n2);
    case Kind::HostRemove:
        return "host removes field " + n;
    case Kind::HostReplace:
        return "host hands over " + n + " fields of seed " + std::to_string(event.seed);
    case Kind::HostCanModify:
        return std::string("host sets CanModifyExisting ") + (event.number ? "True" : "False");
    case Kind::HostDatabase:
        return event.number ? "host attaches the database" : "host detaches the database";
    case Kind::HostRename:
        return "host renames " + (event.number2 ? std::string("the field shown") : "field " + n) +
               " to " + quoted(event.text);
    case Kind::HostWrite:
        return "host writes to " + (event.number2 ? std::string("the field shown") : "field " + n) +
               " the write of seed " + std::to_string(event.seed);
    case Kind::HostMove:
        return "host moves field " + n + " to " + n2;
    case Kind::Undo:
        return "undo";
    case Kind::Redo:
        return "redo";
    case Kind::JumpInHistory:
        return "jump to step " + n + " of the history";
    case Kind::DialogButton:
        return event.target + answersOf(event);
    case Kind::DialogClickRow:
        return "click row " + n;
    case Kind::DialogType:
        return "type into " + event.target + " " + quoted(event.text);
    case Kind::DialogLabelEdit:
        return "rename row " + n + " to " + quoted(event.text);
    case Kind::DialogKey:
        return "key " + n;
    case Kind::DialogResize:
        return "resize to " + n + " x " + n2;
    }
    return "?";
}

} // namespace morvel::reliability
