#include "gallery/Shelf.h"

#include <cmath>

#include <Eigen/Dense>

#include "workbench/engine/Progress.h"
#include "workbench/engine/Workspace.h"
#include "workbench/engine/WorkspaceFile.h"

Shelf::Shelf(std::string const& samples)
{
    workbench::Progress progress;
    auto workspace = workbench::LoadWorkspace(samples + "/sample.zws", progress);
    datasets = std::move(workspace.datasets);
    matrices = std::move(workspace.matrices);

    auto const posterior = Regress(*datasets.at("longley"), "TOTEMP");
    matrices["posterior_moments"] = std::make_shared<Eigen::MatrixXd>(posterior.moments);

    auto const& cars = datasets.at("cars")->data;
    matrices["design"] = std::make_shared<Eigen::MatrixXd>(cars.rightCols(cars.cols() - 2));

    auto model = std::make_shared<Model>();
    model->drawNames = posterior.names;
    model->drawNames.push_back("tau");
    models["linear_employment"] = model;
    models["linear_employment_short"] = std::make_shared<Model>(*model);
    models["probit_transmission"] = std::make_shared<Model>();

    auto survey = std::make_shared<Dataset>();
    for (auto const* const name : {"constant", "choice", "cost_1", "cost_2", "cost_3", "time_1", "time_2",
                                   "time_3", "income", "age", "party_size"})
        survey->varNames.Add(name);
    survey->data = Eigen::MatrixXd::Ones(1, static_cast<Eigen::Index>(survey->varNames.size()));
    surveys["travellers"] = survey;
}

Posterior Regress(Dataset const& dataset, std::string const& dependent)
{
    Posterior posterior;
    Eigen::Index const rows = dataset.data.rows();
    Eigen::MatrixXd x = Eigen::MatrixXd::Ones(rows, dataset.data.cols() - 1);
    Eigen::VectorXd y;
    posterior.names = {"constant"};
    for (Eigen::Index column = 1; column < dataset.data.cols(); ++column)
    {
        auto const name = dataset.varNames[static_cast<std::size_t>(column)].ToStdString(wxConvUTF8);
        if (name == dependent)
        {
            y = dataset.data.col(column);
            continue;
        }
        x.col(static_cast<Eigen::Index>(posterior.names.size())) = dataset.data.col(column);
        posterior.names.push_back(name);
    }

    auto const qr = x.householderQr();
    Eigen::VectorXd const mean = qr.solve(y);
    double const freedom = static_cast<double>(rows - x.cols() - 2);
    double const squares = (y - x * mean).squaredNorm();
    Eigen::MatrixXd const r = qr.matrixQR().topRows(x.cols()).triangularView<Eigen::Upper>();
    Eigen::MatrixXd const rInverse
        = r.triangularView<Eigen::Upper>().solve(Eigen::MatrixXd::Identity(x.cols(), x.cols()));
    posterior.sigma = std::sqrt(squares / freedom);
    posterior.moments.resize(x.cols(), 2);
    posterior.moments.col(0) = mean;
    posterior.moments.col(1) = posterior.sigma * rInverse.rowwise().norm();
    return posterior;
}
