#include "reports/FontCheck.h"

#include "render/Style.h"

#include <algorithm>
#include <array>
#include <fontconfig/fontconfig.h>
#include <memory>
#include <pango/pango-font.h>

namespace reports
{
namespace
{
using Pattern = std::unique_ptr<FcPattern, decltype(&FcPatternDestroy)>;
using FontSet = std::unique_ptr<FcFontSet, decltype(&FcFontSetDestroy)>;

/// Names that always stand for whatever there is.
bool IsGeneric(const wxString& family)
{
    static constexpr std::array kNames{"sans", "sans-serif", "serif", "monospace", "cursive", "fantasy", "system-ui"};
    return std::ranges::any_of(kNames, [&family](const char* name) { return family.IsSameAs(name, false); });
}

Pattern PatternOf(const wxString& family)
{
    Pattern pattern(FcPatternCreate(), &FcPatternDestroy);
    FcPatternAddString(pattern.get(), FC_FAMILY, reinterpret_cast<const FcChar8*>(family.utf8_str().data()));
    return pattern;
}

bool IsInstalled(const wxString& family)
{
    const std::unique_ptr<FcObjectSet, decltype(&FcObjectSetDestroy)> wanted(
        FcObjectSetBuild(FC_FAMILY, static_cast<char*>(nullptr)), &FcObjectSetDestroy);
    const FontSet fonts(FcFontList(nullptr, PatternOf(family).get(), wanted.get()), &FcFontSetDestroy);
    return fonts && fonts->nfont > 0;
}

/// The family that a description names; the toolkit forgets it where it is not installed.
wxString FamilyIn(const wxString& description)
{
    const std::unique_ptr<PangoFontDescription, decltype(&pango_font_description_free)> font(
        pango_font_description_from_string(description.utf8_str()), &pango_font_description_free);
    const char* const families = pango_font_description_get_family(font.get());
    return wxString::FromUTF8(families ? families : "").BeforeFirst(',');
}

/// The family that a name leads to; empty where there are no fonts at all.
wxString FoundAs(const wxString& family)
{
    const Pattern pattern = PatternOf(family);
    FcConfigSubstitute(nullptr, pattern.get(), FcMatchPattern);
    FcDefaultSubstitute(pattern.get());
    FcResult result{};
    const Pattern match(FcFontMatch(nullptr, pattern.get(), &result), &FcPatternDestroy);
    FcChar8* name = nullptr;
    if (!match || FcPatternGetString(match.get(), FC_FAMILY, 0, &name) != FcResultMatch)
        return "";
    return wxString::FromUTF8(reinterpret_cast<const char*>(name));
}
} // namespace

wxString FontTrouble(const wxString& description)
{
    const wxString family = FamilyIn(description);
    if (family.empty() || IsGeneric(family) || IsInstalled(family))
        return "";
    const wxString other = FoundAs(render::FontFromSetting(description).GetFaceName());
    return "the font " + family +
           " is not installed: " + (other.empty() ? "there is none at all" : other + " stands in") +
           "; install it or choose another";
}
} // namespace reports
