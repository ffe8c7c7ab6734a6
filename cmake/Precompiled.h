#pragma once

// The headers that are read beforehand, see KavRoom.cmake. Sources include what they use all the same.

#include <wx/wx.h>

#include <wx/calctrl.h>
#include <wx/clrpicker.h>
#include <wx/dcgraph.h>
#include <wx/fileconf.h>
#include <wx/filepicker.h>
#include <wx/fontpicker.h>
#include <wx/graphics.h>
#include <wx/modalhook.h>
#include <wx/notebook.h>
#include <wx/spinctrl.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <vector>
