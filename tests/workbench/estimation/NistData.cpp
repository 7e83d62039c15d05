#include "workbench/estimation/NistData.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>

#include "workbench/SampleFolder.h"
#include "workbench/engine/DelimitedText.h"
#include "workbench/engine/Progress.h"

namespace
{
using Values = std::vector<double>;

/// The columns y, x, x^2, ..., x^degree.
workbench::DesignMatrix Polynomial(Values const& y, Values const& x, int degree)
{
    workbench::DesignMatrix design;
    design.columns = {"y"};
    design.values.resize(static_cast<Eigen::Index>(y.size()), 1 + degree);
    for (std::size_t i = 0; i < y.size(); ++i)
    {
        auto const row = static_cast<Eigen::Index>(i);
        design.values(row, 0) = y[i];
        for (int power = 1; power <= degree; ++power)
            design.values(row, power) = std::pow(x[i], power);
    }
    for (int power = 1; power <= degree; ++power)
        design.columns.push_back("x" + std::to_string(power));
    return design;
}

/// `count` numbers from `first` on.
Values From(double first, std::size_t count)
{
    Values values(count);
    std::iota(values.begin(), values.end(), first);
    return values;
}

NistRegression Norris()
{
    return {"Norris",
            Polynomial({0.1, 338.8, 118.1, 888.0, 9.2,   228.1, 668.5, 998.5, 449.1, 778.9, 559.2, 0.3,
                        0.1, 778.1, 668.8, 339.3, 448.9, 10.8,  557.7, 228.3, 998.0, 888.8, 119.6, 0.3,
                        0.6, 557.6, 339.3, 888.0, 998.5, 778.9, 10.2,  117.6, 228.9, 668.4, 449.2, 0.2},
                       {0.2, 337.4, 118.2, 884.6, 10.1,  226.5, 666.3, 996.3, 448.6, 777.0, 558.2, 0.4,
                        0.6, 775.5, 666.9, 338.0, 447.5, 11.6,  556.0, 228.1, 995.8, 887.6, 120.2, 0.3,
                        0.3, 556.8, 339.1, 887.2, 999.0, 779.0, 11.1,  118.3, 229.2, 669.1, 448.9, 0.5},
                       1),
            true,
            {-0.262323073774029, 1.00211681802045},
            {0.232818234301152, 0.429796848199937E-03},
            0.884796396144373};
}

NistRegression Pontius()
{
    Values x = From(1, 20);
    std::transform(x.begin(), x.end(), x.begin(), [](double v) { return 150000 * v; });
    x.insert(x.end(), x.begin(), x.begin() + 20);
    return {"Pontius",
            Polynomial({0.11019, 0.21956, 0.32949, 0.43899, 0.54803, 0.65694, 0.76562, 0.87487,
                        0.98292, 1.09146, 1.20001, 1.30822, 1.41599, 1.52399, 1.63194, 1.73947,
                        1.84646, 1.95392, 2.06128, 2.16844, 0.11052, 0.22018, 0.32939, 0.43886,
                        0.54798, 0.65739, 0.76596, 0.87474, 0.98300, 1.09150, 1.20004, 1.30818,
                        1.41613, 1.52408, 1.63159, 1.73965, 1.84696, 1.95445, 2.06177, 2.16829},
                       x, 2),
            true,
            {0.673565789473684E-03, 0.732059160401003E-06, -0.316081871345029E-14},
            {0.107938612033077E-03, 0.157817399981659E-09, 0.486652849992036E-16},
            0.205177424076185E-03};
}

NistRegression Filip()
{
    return {"Filip",
            Polynomial(
                {0.8116, 0.9072, 0.9052, 0.9039, 0.8053, 0.8377, 0.8667, 0.8809, 0.7975, 0.8162, 0.8515,
                 0.8766, 0.8885, 0.8859, 0.8959, 0.8913, 0.8959, 0.8971, 0.9021, 0.909,  0.9139, 0.9199,
                 0.8692, 0.8872, 0.89,   0.891,  0.8977, 0.9035, 0.9078, 0.7675, 0.7705, 0.7713, 0.7736,
                 0.7775, 0.7841, 0.7971, 0.8329, 0.8641, 0.8804, 0.7668, 0.7633, 0.7678, 0.7697, 0.77,
                 0.7749, 0.7796, 0.7897, 0.8131, 0.8498, 0.8741, 0.8061, 0.846,  0.8751, 0.8856, 0.8919,
                 0.8934, 0.894,  0.8957, 0.9047, 0.9129, 0.9209, 0.9219, 0.7739, 0.7681, 0.7665, 0.7703,
                 0.7702, 0.7761, 0.7809, 0.7961, 0.8253, 0.8602, 0.8809, 0.8301, 0.8664, 0.8834, 0.8898,
                 0.8964, 0.8963, 0.9074, 0.9119, 0.9228},
                {-6.860120914, -4.324130045, -4.358625055, -4.358426747, -6.955852379, -6.661145254,
                 -6.355462942, -6.118102026, -7.115148017, -6.815308569, -6.519993057, -6.204119983,
                 -5.853871964, -6.109523091, -5.79832982,  -5.482672118, -5.171791386, -4.851705903,
                 -4.517126416, -4.143573228, -3.709075441, -3.499489089, -6.300769497, -5.953504836,
                 -5.642065153, -5.031376979, -4.680685696, -4.329846955, -3.928486195, -8.56735134,
                 -8.363211311, -8.107682739, -7.823908741, -7.522878745, -7.218819279, -6.920818754,
                 -6.628932138, -6.323946875, -5.991399828, -8.781464495, -8.663140179, -8.473531488,
                 -8.247337057, -7.971428747, -7.676129393, -7.352812702, -7.072065318, -6.774174009,
                 -6.478861916, -6.159517513, -6.835647144, -6.53165267,  -6.224098421, -5.910094889,
                 -5.598599459, -5.290645224, -4.974284616, -4.64454848,  -4.290560426, -3.885055584,
                 -3.408378962, -3.13200249,  -8.726767166, -8.66695597,  -8.511026475, -8.165388579,
                 -7.886056648, -7.588043762, -7.283412422, -6.995678626, -6.691862621, -6.392544977,
                 -6.067374056, -6.684029655, -6.378719832, -6.065855188, -5.752272167, -5.132414673,
                 -4.811352704, -4.098269308, -3.66174277,  -3.2644011},
                10),
            true,
            {-1467.48961422980, -2772.17959193342, -2316.37108160893, -1127.97394098372,
             -354.478233703349, -75.1242017393757, -10.8753180355343, -1.06221498588947,
             -0.670191154593408E-01, -0.246781078275479E-02, -0.402962525080404E-04},
            {298.084530995537, 559.779865474950, 466.477572127796, 227.204274477751, 71.6478660875927,
             15.2897178747400, 2.23691159816033, 0.221624321934227, 0.142363763154724E-01,
             0.535617408889821E-03, 0.896632837373868E-05},
            0.334801051324544E-02};
}

NistRegression Longley()
{
    SampleFolder const samples;
    workbench::Progress progress;
    auto const dataset = workbench::ImportDelimited("longley.csv", ',', progress).dataset;
    auto const design = workbench::MakeDesignMatrix(
        *dataset, "TOTEMP", {"GNPDEFL", "GNP", "UNEMP", "ARMED", "POP", "YEAR"}, {});
    return {"Longley",
            design,
            true,
            {-3482258.63459582, 15.0618722713733, -0.358191792925910E-01, -2.02022980381683,
             -1.03322686717359, -0.511041056535807E-01, 1829.15146461355},
            {890420.383607373, 84.9149257747669, 0.334910077722432E-01, 0.488399681651699,
             0.214274163161675, 0.226073200069370, 455.478499142212},
            304.854073561965};
}

/// One of three polynomials of degree 5 with all coefficients 1, the errors `scale` times those of the
/// first.
NistRegression Wampler(std::string const& name, Values const& y, double scale)
{
    Values errors = {2152.32624678170, 2363.55173469681, 779.343524331583,
                     101.475507550350, 5.64566512170752, 0.112324854679312};
    for (double& error : errors)
        error *= scale;
    return {name, Polynomial(y, From(0, 21), 5), true, Values(6, 1.0), errors, 2360.14502379268 * scale};
}
} // namespace

workbench::RegressionData NistRegression::Reduce() const
{
    workbench::Progress progress;
    return workbench::ReduceRegression(design, constant, progress);
}

double NistRegression::Freedom() const
{
    return static_cast<double>(design.values.rows()) - static_cast<double>(coefficients.size());
}

std::vector<NistRegression> const& NistRegressions()
{
    static std::vector<NistRegression> const all = {
        Norris(),
        Pontius(),
        {"NoInt1",
         Polynomial(From(130, 11), From(60, 11), 1),
         false,
         {2.07438016528926},
         {0.165289256198347E-01},
         3.56753034006338},
        {"NoInt2",
         Polynomial({3, 4, 4}, {4, 5, 6}, 1),
         false,
         {0.727272727272727},
         {0.420827318078432E-01},
         0.369274472937998},
        Filip(),
        Longley(),
        Wampler("Wampler3", {760,    -2042,  2111,    -1684,   3888,    1858,    11379,
                             17560,  39287,  64382,   113159,  175108,  273291,  400186,
                             581243, 811568, 1121004, 1506550, 2002767, 2611612, 3369180},
                1),
        Wampler("Wampler4", {75901,   -204794, 204863,  -204436, 253665,  -200894, 214131,
                             -185192, 221249,  -138370, 315911,  -27644,  455253,  197434,
                             783995,  608816,  1370781, 1303798, 2205519, 2408860, 3444321},
                100),
        Wampler("Wampler5", {7590001,   -20479994, 20480063,  -20479636, 25231365,  -20476094, 20489331,
                             -20460392, 18417449,  -20413570, 20591111,  -20302844, 18651453,  -20077766,
                             21059195,  -19666384, 26348481,  -18971402, 22480719,  -17866340, 10958421},
                10000),
    };
    return all;
}

NistRegression const& Nist(std::string const& name)
{
    for (auto const& regression : NistRegressions())
        if (regression.name == name)
            return regression;
    throw std::out_of_range(name);
}
