#pragma once

#include <string>

#include <Eigen/Core>

#include "engine/Export.h"

/// Settings that the engine defines and sets before the first widget is made.
namespace Zenqo_SYSTEM_NAMESPACE
{
/// True when the application has a window. False for a run without one: the console then writes
/// to standard output and the gauge does nothing. Each widget reads it once, at construction.
extern ZENQO_API bool RUN_GUI;

/// Root folder of the installation, no trailing slash; icons lie in "/System Files/Icons" below it.
extern ZENQO_API std::string ZENQO_SYSTEM;

/// Default sampler settings, at least 5 entries: [0] retained draws for each chain, [1] burn-in for
/// each chain, [2] number of chains, [3] thinning, [4] seed.
extern ZENQO_API Eigen::VectorXd GLOBAL_Gibbs;

/// Format of matrices printed on the console.
extern ZENQO_API Eigen::IOFormat GLOBAL_IOFormatConsole;

/// Format of a matrix or vector written into a script fragment.
extern ZENQO_API Eigen::IOFormat GLOBAL_IOFormatInput;

/// Path to the binary of an outside program; zenqo::DEFAULT_STRING where none is set.
///@{
extern ZENQO_API std::string GLOBAL_DirectoryJAGS;
extern ZENQO_API std::string GLOBAL_DirectoryBUGS;
extern ZENQO_API std::string GLOBAL_DirectorySTAN;
extern ZENQO_API std::string GLOBAL_DirectoryMATLAB;
extern ZENQO_API std::string GLOBAL_DirectoryOCTAVE;
extern ZENQO_API std::string GLOBAL_DirectoryR;
extern ZENQO_API std::string GLOBAL_DirectorySTATA;
///@}
} // namespace Zenqo_SYSTEM_NAMESPACE
