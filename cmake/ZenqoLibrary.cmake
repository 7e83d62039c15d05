# The widget library. Every public class is a pair of files named after it; common/ is private.

set(zenqo_public_classes
  console/MainTextCtrl
  console/ZenqoConsole
  dialogs/analysis/AAD0_NotReady
  dialogs/analysis/AAD1_StoreElement
  dialogs/analysis/AAD2a_CalculateMFX
  dialogs/analysis/AAD2b_CalculateMFX
  dialogs/analysis/AAD2c_CalculateMFX
  dialogs/analysis/AAD3_Forecast
  dialogs/analysis/AAD4_PlotIRFs
  dialogs/analysis/AAD5a_Predict
  dialogs/analysis/AAD5b_Predict
  dialogs/analysis/CompareModelsDialog
  dialogs/analysis/PlotDrawsDialog
  dialogs/analysis/TestParametersDialog
  dialogs/application/AboutZenqo
  dialogs/application/DirectoriesDialog
  dialogs/application/ExportFigureDialog
  dialogs/application/ExportMatrixDialog
  dialogs/application/OptionsDialog
  dialogs/application/StartupHelpDialog
  dialogs/data/ClearDatasetDialog
  dialogs/data/ClearVariableDialog
  dialogs/data/CreateVariableDialog
  dialogs/data/ExportDataDialog
  dialogs/data/ImportDataDialog
  dialogs/data/MarkDatasetDialog
  dialogs/data/PlotDataDialog
  dialogs/data/SortDataDialog
  dialogs/data/SummarizeDataDialog
  dialogs/external/BUGSDialog
  dialogs/external/InitsNotebook
  dialogs/external/InitsNotebookPage
  dialogs/external/JAGSDialog
  dialogs/external/MatlabDialog
  dialogs/external/OctaveDialog
  dialogs/external/RprojectDialog
  dialogs/external/StanDialog
  dialogs/external/StataDialog
  modelspec/Calculator
  modelspec/EqsNotebook
  modelspec/EqsNotebookPage
  modelspec/ExogValuesDialog
  modelspec/ExogValuesGrid
  modelspec/LagsPicker
  modelspec/PriorDialog
  modelspec/PriorGrid
  modelspec/PriorGridSym
  modelspec/PriorGridVecMat
  modelspec/PriorPicker
  modelspec/PriorProbGrid
  modelspec/PriorProbPicker
  modelspec/UserPointDialog
  modelspec/VariablePicker_Y_X
  modelspec/VariablePicker_yX
  modelspec/VariablePicker_yX2
  modelspec/VariablePicker_YXS
  modelspec/VariablePicker_yXZ
  modelspec/VariablePicker_yZX
  modelspec/VariablePicker_yZX2
  modelspec/VariablePickerMark
  panes/DataGrid
  panes/DatasetsPane
  panes/MatricesPane
  panes/MatrixGrid
  panes/ModelsPane
  panes/ProgressDialog
  panes/StatusBar
  pickers/AdditionalPicker1
  pickers/DatasetPicker
  pickers/DrawsPicker
  pickers/GibbsPicker
  pickers/GibbsPickerStan
  pickers/MatrixPicker
  pickers/ModelPicker
  pickers/ModelPickerPMP
  pickers/NotePanel
  pickers/OutputFilePicker
  pickers/ScriptPicker
  pickers/StorePicker
  pickers/TextPicker
  pickers/VariablePickerSingle)

set(zenqo_engine_headers
  engine/Dataset.h
  engine/Engine.h
  engine/Events.h
  engine/Export.h
  engine/Functions.h
  engine/Globals.h
  engine/Model.h
  engine/Sentinels.h)

set(zenqo_private_sources
  common/ActionArguments.cpp
  common/ActionControls.cpp
  common/ActionFrame.cpp
  common/ActionOptions.cpp
  common/CaretText.cpp
  common/ChoiceRow.cpp
  common/Delimiter.cpp
  common/DialogFrame.cpp
  common/DisplayGrid.cpp
  common/DroppedFile.cpp
  common/ExampleLine.cpp
  common/ExpressionBox.cpp
  common/FilePath.cpp
  common/FittedDialog.cpp
  common/GridSize.cpp
  common/LabelColours.cpp
  common/Lags.cpp
  common/ListBoxItems.cpp
  common/ListPair.cpp
  common/MarginalEffects.cpp
  common/MatrixText.cpp
  common/NameList.cpp
  common/NotebookDialog.cpp
  common/Number.cpp
  common/NumberGrid.cpp
  common/PlusTab.cpp
  common/Predictions.cpp
  common/PriorChoice.cpp
  common/RadioBox.cpp
  common/Records.cpp
  common/RemainingTime.cpp
  common/RoleGrid.cpp
  common/RoleLists.cpp
  common/SamplerDialog.cpp
  common/SamplerRows.cpp
  common/SamplerSettings.cpp
  common/SaveFileBox.cpp
  common/ScriptEvent.cpp
  common/SystemIcon.cpp
  common/TexText.cpp
  common/Text.cpp
  common/TextLabel.cpp
  common/TransferButton.cpp
  common/TypewriterFont.cpp
  common/VariableName.cpp
  common/Warning.cpp)

set(zenqo_public_headers ${zenqo_engine_headers})
foreach(class ${zenqo_public_classes})
  list(APPEND zenqo_public_headers ${class}.h)
  list(APPEND zenqo_public_sources ${class}.cpp)
endforeach()

# The helpers, which the library takes in whole and the tests link a second time to reach them.
add_library(zenqo_private STATIC ${zenqo_private_sources})
zenqo_common(zenqo_private)
set_target_properties(zenqo_private PROPERTIES POSITION_INDEPENDENT_CODE ON)
target_link_libraries(zenqo_private PUBLIC Zenqo::wxWidgets Eigen3::Eigen PRIVATE Boost::headers)

# What hosts link. The engine's symbols stay undefined here: the host's executable or the engine's
# own libraries define them.
add_library(zenqo_widgets SHARED ${zenqo_public_sources})
add_library(Zenqo::Widgets ALIAS zenqo_widgets)
zenqo_common(zenqo_widgets)
set_target_properties(zenqo_widgets PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION 2
                                               EXPORT_NAME Widgets)
target_compile_features(zenqo_widgets PUBLIC cxx_std_17)
target_link_libraries(zenqo_widgets PUBLIC Zenqo::wxWidgets Eigen3::Eigen
                                    PRIVATE $<BUILD_INTERFACE:zenqo_private>)
target_include_directories(zenqo_widgets PUBLIC
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/zenqo>)
