#pragma once

// What the readers include of the toolkit, read once.

#include <wx/wx.h>

#include <wx/fileconf.h>
#include <wx/tokenzr.h>

#include <filesystem>
#include <map>
#include <vector>
