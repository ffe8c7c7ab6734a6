#include "ui/options/LayerRows.h"

namespace ui
{
LineRow NewLineRow(const Form& form, LineStyle& lines, const wxString& layer)
{
    return {form.Check(lines.show, "", {.name = layer + ": Plot"}), form.Colour(lines.colour, layer + ": Colour"),
            form.Alpha(lines.alpha, layer + ": Alpha"),
            form.Spin(lines.lineWidth, {1, 10}, {.name = layer + ": Line Width", .tip = "1 to 10 pixels"})};
}

TextStyleRow NewTextStyleRow(const Form& form, TextStyle& text, const wxString& layer)
{
    return {form.Check(text.show, "", {.name = layer + ": Plot Text"}),
            form.Colour(text.colour, layer + ": Text Colour"), form.Font(text.font, layer + ": Font"),
            form.Alpha(text.alpha, layer + ": Text Alpha")};
}
} // namespace ui
