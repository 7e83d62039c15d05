#pragma once

#include <string>

#include "workbench/app/DataForms.h"

namespace workbench
{
/// The statement that the user composes in one of the library's dialogs about programs of others; nothing
/// if it was cancelled, or if the workbench does not run that program, which the user is then told.
///@{
Asked AskJags(wxWindow* parent);
Asked AskOpenBugs(wxWindow* parent);
Asked AskStan(wxWindow* parent);
Asked AskOctave(wxWindow* parent);
Asked AskRproject(wxWindow* parent);
Asked AskMatlab(wxWindow* parent);
Asked AskStata(wxWindow* parent);
///@}
} // namespace workbench
