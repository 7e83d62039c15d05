#pragma once

#include <string>

#include "workbench/app/DataForms.h"
#include "workbench/engine/Workspace.h"

namespace workbench
{
/// The statement that the user composes in one of the library's dialogs about estimated models; nothing
/// if it was cancelled, or if the model has no such thing, which the user is then told. `workspace` has
/// the model `shown`, which is the one that is asked about, or the one that is selected at first.
///@{
Asked AskTest(wxWindow* parent, Workspace& workspace, std::string const& shown);
Asked AskCompare(wxWindow* parent, Workspace& workspace, std::string const& shown);
Asked AskPlotDraws(wxWindow* parent, Workspace& workspace, std::string const& shown);
Asked AskStoreFitted(wxWindow* parent, Workspace& workspace, std::string const& shown);
Asked AskStoreResiduals(wxWindow* parent, Workspace& workspace, std::string const& shown);
Asked AskEffects(wxWindow* parent, Workspace& workspace, std::string const& shown);
Asked AskForecast(wxWindow* parent, Workspace& workspace, std::string const& shown);
Asked AskResponses(wxWindow* parent, Workspace& workspace, std::string const& shown);
Asked AskPredict(wxWindow* parent, Workspace& workspace, std::string const& shown);
///@}
} // namespace workbench
