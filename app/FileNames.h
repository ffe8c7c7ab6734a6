#pragma once

#include <wx/string.h>

#include <string>

namespace app
{
/// Makes the toolkit take file names as bytes: as UTF-8 whatever the locale, with a detour for bytes that are not, so
/// that every name survives the way through the toolkit's texts.
void TakeFileNamesAsBytes();

/// A name as the system passed it.
wxString FileName(const std::string& bytes);

/// A text as it is printed: the names in it as the system passed them.
std::string Bytes(const wxString& text);
} // namespace app
