#include "controls/GlintDesign.h"

#include "controls/GlintLayout.h"

namespace skylob {

namespace {

constexpr ColourReference kUsualMask = 0xC0C0C0;

std::int32_t signedColour(ColourReference colour) {
    return static_cast<std::int32_t>(colour);
}

ColourReference readColour(const PropertyBag& bag, std::string_view key, ColourReference fallback) {
    return static_cast<ColourReference>(bag.readInteger(key, signedColour(fallback)));
}

}  // namespace

GlintDesign::GlintDesign(GlintState& button, GlintSurface& surface)
    : m_button{button}, m_surface{surface} {
}

void GlintDesign::initialiseProperties() {
    m_button.Enabled = m_button.ShowFocusRect = m_button.UseMaskColor = true;
    m_button.Caption = m_surface.displayName();
    m_surface.setFont(m_surface.ambientFont());
    // Quirk "two sets of defaults": a form without entries gets others, in readProperties().
    m_button.ButtonType = kStyleDropped;
    m_button.ColorScheme = kSchemeOwn;
    // Quirk "black on black": the palette is made before there are any colours.
    recalcColours();
    m_button.BackColor = m_button.BackOver = m_button.palette.FaceColour.bgr();
    m_button.MaskColor = kUsualMask;
    m_button.ForeColor = m_button.ForeOver = m_button.palette.TextColour.bgr();
    layOut(m_button, m_surface);
}

void GlintDesign::readProperties(const PropertyBag& bag) {
    GlintState& b = m_button;
    // Quirk "two sets of defaults": not those of initialiseProperties().
    b.ButtonType = bag.readInteger("BTYPE", kStyleCommon);
    b.Caption = bag.readText("TX", "");
    b.Enabled = bag.readBoolean("ENAB", true);
    m_surface.setFont(bag.readFont("FONT", m_surface.ambientFont()));
    b.ColorScheme = bag.readInteger("COLTYPE", kSchemeSystem);
    b.ShowFocusRect = bag.readBoolean("FOCUSR", true);
    b.BackColor = readColour(bag, "BCOL", systemColour(systemcolour::kButtonFace).bgr());
    b.BackOver = readColour(bag, "BCOLO", b.BackColor);
    b.ForeColor = readColour(bag, "FCOL", systemColour(systemcolour::kButtonText).bgr());
    b.ForeOver = readColour(bag, "FCOLO", b.ForeColor);
    b.MaskColor = readColour(bag, "MCOL", kUsualMask);
    m_surface.setMousePointer(static_cast<std::int16_t>(bag.readInteger("MPTR", 0)));
    m_surface.setMouseIcon(bag.readText("MICON", {}));
    b.PictureNormal = bag.readText("PICN", {});
    // Quirk "PICH and PICO": setting this picture marks "PICO"; saved forms hold it under "PICH".
    b.PictureOver = bag.readText("PICH", {});
    b.UseMaskColor = bag.readBoolean("UMCOL", true);
    b.SoftBevel = bag.readBoolean("SOFT", false);
    b.PicturePosition = bag.readInteger("PICPOS", kPictureLeft);
    b.UseGreyscale = bag.readBoolean("NGREY", false);
    b.SpecialEffect = bag.readInteger("FX", 0);
    b.CheckBoxBehaviour = bag.readBoolean("CHECK", false);
    b.Value = bag.readBoolean("VALUE", false);

    m_surface.setEnabled(b.Enabled);
    measurePictureNormal();
    layOut(m_button, m_surface);
    m_surface.setAccessKeyFrom(b.Caption);
}

void GlintDesign::writeProperties(PropertyBag& bag) const {
    const GlintState& b = m_button;
    bag.writeInteger("BTYPE", b.ButtonType);
    bag.writeText("TX", b.Caption);
    bag.writeBoolean("ENAB", b.Enabled);
    bag.writeFont("FONT", m_surface.font());
    bag.writeInteger("COLTYPE", b.ColorScheme);
    bag.writeBoolean("FOCUSR", b.ShowFocusRect);
    bag.writeInteger("BCOL", signedColour(b.BackColor));
    bag.writeInteger("BCOLO", signedColour(b.BackOver));
    bag.writeInteger("FCOL", signedColour(b.ForeColor));
    bag.writeInteger("FCOLO", signedColour(b.ForeOver));
    bag.writeInteger("MCOL", signedColour(b.MaskColor));
    bag.writeInteger("MPTR", m_surface.mousePointer());
    bag.writeText("MICON", m_surface.mouseIcon());
    bag.writeText("PICN", b.PictureNormal);
    bag.writeText("PICH", b.PictureOver);
    bag.writeBoolean("UMCOL", b.UseMaskColor);
    bag.writeBoolean("SOFT", b.SoftBevel);
    bag.writeInteger("PICPOS", b.PicturePosition);
    bag.writeBoolean("NGREY", b.UseGreyscale);
    bag.writeInteger("FX", b.SpecialEffect);
    bag.writeBoolean("CHECK", b.CheckBoxBehaviour);
    bag.writeBoolean("VALUE", b.Value);
}

void GlintDesign::setBackColor(ColourReference value) {
    m_button.BackColor = value;
    // Quirk "late palette": hovering colours are taken along only at design time.
    if (!m_surface.isUserMode()) m_button.BackOver = value;
    recalcColours();
    redrawCurrent();
    mark("BCOL");
}

void GlintDesign::setBackOver(ColourReference value) {
    // Quirk "late palette": it is not made anew here, nor for the other colours of hovering, the
    // mask, the bevel and the style.
    m_button.BackOver = value;
    redrawCurrent();
    mark("BCOLO");
}

void GlintDesign::setForeColor(ColourReference value) {
    m_button.ForeColor = value;
    if (!m_surface.isUserMode()) m_button.ForeOver = value;
    recalcColours();
    redrawCurrent();
    mark("FCOL");
}

void GlintDesign::setForeOver(ColourReference value) {
    m_button.ForeOver = value;
    redrawCurrent();
    mark("FCOLO");
}

void GlintDesign::setMaskColor(ColourReference value) {
    m_button.MaskColor = value;
    redrawCurrent();
    mark("MCOL");
}

void GlintDesign::setButtonType(std::int32_t value) {
    m_button.ButtonType = value;
    if (value == kStyleGlass && m_button.IsShown) captureBackground(m_button, m_surface);
    resize(m_button, m_surface);
    mark("BTYPE");
}

void GlintDesign::setCaption(const std::string& value) {
    m_button.Caption = value;
    m_surface.setAccessKeyFrom(value);
    layOut(m_button, m_surface);
    redrawCurrent();
    mark("TX");
}

void GlintDesign::setEnabled(bool value) {
    m_button.Enabled = value;
    redrawNormal();
    m_surface.setEnabled(value);
    mark("ENAB");
}

void GlintDesign::setFont(const GlintFont& value) {
    changeFont(value);
    mark("FONT");
}

void GlintDesign::setFontBold(bool value) {
    GlintFont font = m_surface.font();
    font.bold = value;
    changeFont(font);
}

void GlintDesign::setFontItalic(bool value) {
    GlintFont font = m_surface.font();
    font.italic = value;
    changeFont(font);
}

void GlintDesign::setFontUnderline(bool value) {
    GlintFont font = m_surface.font();
    font.underline = value;
    changeFont(font);
}

void GlintDesign::setFontSize(float value) {
    GlintFont font = m_surface.font();
    font.size = value;
    changeFont(font);
}

void GlintDesign::setFontName(const std::string& value) {
    GlintFont font = m_surface.font();
    font.name = value;
    changeFont(font);
}

void GlintDesign::setColorScheme(std::int32_t value) {
    m_button.ColorScheme = value;
    recalcColours();
    redrawNormal();
    mark("COLTYPE");
}

void GlintDesign::setShowFocusRect(bool value) {
    m_button.ShowFocusRect = value;
    mark("FOCUSR");
}

void GlintDesign::setMousePointer(std::int16_t value) {
    m_surface.setMousePointer(value);
    mark("MPTR");
}

void GlintDesign::setMouseIcon(const PictureReference& value) {
    m_surface.setMouseIcon(value);
    mark("MICON");
}

void GlintDesign::setSoftBevel(bool value) {
    m_button.SoftBevel = value;
    redrawCurrent();
    mark("SOFT");
}

void GlintDesign::setPictureNormal(const PictureReference& value) {
    m_button.PictureNormal = value;
    measurePictureNormal();
    layOut(m_button, m_surface);
    redrawCurrent();
    mark("PICN");
}

void GlintDesign::setPictureOver(const PictureReference& value) {
    m_button.PictureOver = value;
    if (m_button.IsOver) redrawCurrent();
    // Quirk "PICH and PICO": hosts know it by this key.
    mark("PICO");
}

void GlintDesign::setPicturePosition(std::int32_t value) {
    m_button.PicturePosition = value;
    // Quirk "marked before the layout": all other marks come last.
    mark("PICPOS");
    layOut(m_button, m_surface);
    redrawCurrent();
}

void GlintDesign::setUseMaskColor(bool value) {
    m_button.UseMaskColor = value;
    if (!m_button.PictureNormal.empty()) redrawCurrent();
    mark("UMCOL");
}

void GlintDesign::setUseGreyscale(bool value) {
    m_button.UseGreyscale = value;
    if (!m_button.PictureNormal.empty()) redrawCurrent();
    mark("NGREY");
}

void GlintDesign::setSpecialEffect(std::int32_t value) {
    m_button.SpecialEffect = value;
    redrawCurrent();
    mark("FX");
}

void GlintDesign::setCheckBoxBehaviour(bool value) {
    m_button.CheckBoxBehaviour = value;
    mark("CHECK");
}

void GlintDesign::setValue(bool value) {
    m_button.Value = value;
    if (m_button.CheckBoxBehaviour) redrawNormal();
    mark("VALUE");
}

void GlintDesign::recalcColours() {
    m_button.palette = RecalcColours(m_button, m_surface.containerColours());
}

void GlintDesign::redrawCurrent() {
    Redraw(m_button, m_surface, m_button.currentState, true);
}

void GlintDesign::redrawNormal() {
    Redraw(m_button, m_surface, kStateUp, true);
}

void GlintDesign::changeFont(const GlintFont& font) {
    m_surface.setFont(font);
    layOut(m_button, m_surface);
    redrawCurrent();
}

void GlintDesign::measurePictureNormal() {
    m_button.picture = m_surface.measurePicture(m_button.PictureNormal);
}

void GlintDesign::mark(std::string_view key) {
    m_surface.propertyChanged(key);
}

}  // namespace skylob
