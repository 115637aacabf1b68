// Forms of any content. A button gives back each value that its form held, a form that it has saved
// makes the same button again, and whatever happens to the button, it is drawn up or pressed.
#include <map>

#include "fuzz/Input.h"
#include "tests/support/GlintFakes.h"

using namespace skylob;
using fuzz::Input;
using fuzz::require;

struct Bag : PropertyBag {
    using Key = std::string_view;
    template <typename Value>
    using Values = std::map<std::string, Value, std::less<>>;

    Values<std::int32_t> numbers;
    Values<bool> flags;
    Values<std::string> texts;
    Values<GlintFont> fonts;

    template <typename Value>
    static Value held(const Values<Value>& values, Key key, Value fallback) {
        const auto found = values.find(key);
        return found == values.end() ? fallback : found->second;
    }
    std::int32_t readInteger(Key key, std::int32_t other) const override {
        return held(numbers, key, other);
    }
    bool readBoolean(Key key, bool other) const override { return held(flags, key, other); }
    std::string readText(Key key, const std::string& other) const override {
        return held(texts, key, other);
    }
    GlintFont readFont(Key key, const GlintFont& other) const override {
        return held(fonts, key, other);
    }
    void writeInteger(Key key, std::int32_t value) override { numbers[std::string{key}] = value; }
    void writeBoolean(Key key, bool value) override { flags[std::string{key}] = value; }
    void writeText(Key key, const std::string& text) override { texts[std::string{key}] = text; }
    void writeFont(Key key, const GlintFont& font) override { fonts[std::string{key}] = font; }
};

static Bag bagOf(Input& input) {
    Bag bag;
    for (const char* key :
         {"BTYPE", "COLTYPE", "BCOL", "BCOLO", "FCOL", "FCOLO", "MCOL", "PICPOS", "FX"})
        if (input.flag()) bag.numbers[key] = input.flag() ? input.number() : input.byte();
    if (input.flag()) bag.numbers["MPTR"] = static_cast<std::int16_t>(input.number());
    for (const char* key : {"ENAB", "FOCUSR", "UMCOL", "SOFT", "NGREY", "CHECK", "VALUE"})
        if (input.flag()) bag.flags[key] = input.flag();
    for (const char* key : {"TX", "MICON", "PICN", "PICH"})
        if (input.flag()) bag.texts[key] = input.line();
    if (input.flag()) bag.fonts["FONT"] = {input.line(), static_cast<float>(input.byte())};
    return bag;
}

template <typename Values>
static bool hasAllOf(const Values& values, const Values& wanted) {
    return std::ranges::all_of(wanted, [&](const auto& value) {
        return values.contains(value.first) && values.at(value.first) == value.second;
    });
}

static bool hasAll(const Bag& bag, const Bag& wanted) {
    return hasAllOf(bag.numbers, wanted.numbers) && hasAllOf(bag.flags, wanted.flags) &&
           hasAllOf(bag.texts, wanted.texts) && hasAllOf(bag.fonts, wanted.fonts);
}

static Bag savedBy(test::GlintRig& rig, const Bag& form) {
    rig.design.readProperties(form);
    Bag saved;
    rig.design.writeProperties(saved);
    return saved;
}

/// Something that a host may report or set, with any numbers.
static void happen(test::GlintRig& rig, Input& input) {
    GlintInteraction& button = rig.interaction;
    const auto mouse = [&input] {
        return GlintMouse{static_cast<std::int16_t>(input.byte()), 0,
                          static_cast<float>(input.number()), static_cast<float>(input.number())};
    };
    rig.inside = input.flag();
    switch (input.from(0, 15)) {
        case 0:
            return button.mouseDown(mouse());
        case 1:
            return button.mouseUp(mouse());
        case 2:
            return button.mouseMove(mouse());
        case 3:
            return button.overTimerTick();
        case 4:
            return button.click();
        case 5:
            return button.doubleClick();
        case 6:
            return button.accessKey();
        case 7:
            return button.letGo();
        case 8:
            return button.keyDown(static_cast<std::int16_t>(input.number()), 0);
        case 9:
            return button.keyUp(static_cast<std::int16_t>(input.number()), 0);
        case 10:
            return button.gotFocus();
        case 11:
            return button.lostFocus();
        case 12:
            return button.show();
        case 13:
            return rig.design.setButtonType(input.number());
        case 14:
            return rig.design.setBackColor(static_cast<ColourReference>(input.number()));
        default:
            return rig.design.setPicturePosition(input.number());
    }
}

int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    Input input{bytes, size};
    const Bag form = bagOf(input);
    test::GlintRig rig, twin;
    rig.client = {input.byte(), input.byte()};
    const Bag saved = savedBy(rig, form);
    require(hasAll(saved, form), "a form gets back what it held");
    require(hasAll(savedBy(twin, saved), saved), "a saved form makes the same button");
    while (!input.isOver()) {
        happen(rig, input);
        const int state = rig.button.currentState;
        require(state == kStateUp || state == kStatePressed, "a button is up or pressed");
    }
    return 0;
}
