#pragma once

#include "controls/GlintSurface.h"
#include "controls/PropertyBag.h"

namespace skylob {

/// A button's public properties: what setting each of them sets off, in that order, and how they
/// come from a form and go back to it. Reading a property is reading the state; those that the
/// surface keeps are read here.
///
/// "Mark" below means that the surface hears the key under which the form has to be saved.
/// Nothing is validated: any number is stored.
class GlintDesign {
  public:
    /// Both must outlive this object.
    GlintDesign(GlintState& button, GlintSurface& surface);

    /// A button newly placed on a form: dropped, with colours of its own, which come out black
    /// on black because the palette is made before there are any.
    void initialiseProperties();
    /// A form that holds the button is loaded. A bag without entries gives the common style and
    /// the system's colours.
    void readProperties(const PropertyBag& bag);
    /// The form is saved: all 22 entries, in the order in which they are read.
    void writeProperties(PropertyBag& bag) const;

    void setBackColor(ColourReference value);
    void setBackOver(ColourReference value);
    void setForeColor(ColourReference value);
    void setForeOver(ColourReference value);
    void setMaskColor(ColourReference value);
    void setButtonType(std::int32_t value);
    void setCaption(const std::string& value);
    void setEnabled(bool value);
    void setFont(const GlintFont& value);
    void setFontBold(bool value);
    void setFontItalic(bool value);
    void setFontUnderline(bool value);
    void setFontSize(float value);
    void setFontName(const std::string& value);
    void setColorScheme(std::int32_t value);
    void setShowFocusRect(bool value);
    void setMousePointer(std::int16_t value);
    void setMouseIcon(const PictureReference& value);
    void setSoftBevel(bool value);
    void setPictureNormal(const PictureReference& value);
    void setPictureOver(const PictureReference& value);
    void setPicturePosition(std::int32_t value);
    void setUseMaskColor(bool value);
    void setUseGreyscale(bool value);
    void setSpecialEffect(std::int32_t value);
    void setCheckBoxBehaviour(bool value);
    void setValue(bool value);

    /// What the surface has: all of the font, the pointer's shape (0 is the form's), the picture of
    /// a shape of one's own (empty for none), and the window's handle.
    GlintFont Font() const { return m_surface.font(); }
    bool FontBold() const { return Font().bold; }
    bool FontItalic() const { return Font().italic; }
    bool FontUnderline() const { return Font().underline; }
    float FontSize() const { return Font().size; }
    std::string FontName() const { return Font().name; }
    std::int16_t MousePointer() const { return m_surface.mousePointer(); }
    PictureReference MouseIcon() const { return m_surface.mouseIcon(); }
    GlintWindowHandle hwnd() const { return m_surface.windowHandle(); }

    static constexpr const char* Version = "w2005.08.15";

    /// Makes the palette anew from the properties.
    void recalcColours();

  private:
    void redrawCurrent();
    void redrawNormal();
    void changeFont(const GlintFont& font);
    void measurePictureNormal();
    void mark(std::string_view key);

    GlintState& m_button;
    GlintSurface& m_surface;
};

}  // namespace skylob
