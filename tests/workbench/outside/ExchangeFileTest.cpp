#include "workbench/outside/ExchangeFile.h"

#include <catch2/catch.hpp>

#include <cstring>
#include <limits>

#include "workbench/DataDesk.h"
#include "workbench/Scratch.h"

using namespace workbench;

namespace
{
double const NA = std::numeric_limits<double>::quiet_NaN();
double const INF = std::numeric_limits<double>::infinity();

/// The bytes of numbers.
std::string Bytes(std::vector<double> const& numbers)
{
    std::string bytes(numbers.size() * sizeof(double), '\0');
    std::memcpy(bytes.data(), numbers.data(), bytes.size());
    return bytes;
}

std::shared_ptr<Dataset> MakeMixed()
{
    auto const dataset = MakeDataset({"x", "name", "z"}, 3);
    dataset->data.col(1) << 0.1, NA, -0.0;
    dataset->data.col(2) << 0, NA, 1;
    dataset->data.col(3) << INF, 5e-324, 1e308;
    dataset->labelledColumns[2] = {{"ä b", "c"}, {"ä b", "", "c"}};
    return dataset;
}

std::string const NUL(1, '\0');

std::string const MIXED = "dataset 3 3\nnumber x\n" + Bytes({0.1, NA, -0.0}) + "text 8 name\nä b" + NUL
                          + NUL + "c" + NUL + "number z\n" + Bytes({INF, 5e-324, 1e308});

/// What a file with this in it gives.
Exchanged Read(std::string const& content)
{
    Scratch const scratch;
    return ReadExchange(scratch.Write("file", content));
}

std::string Failure(std::string const& content)
{
    return ErrorOf([&] { Read(content); });
}
} // namespace

TEST_CASE("a matrix goes and comes back to the last bit")
{
    Scratch const scratch;
    Eigen::MatrixXd matrix(2, 3);
    matrix << 1.0000000000000002, -0.0, INF, 5e-324, -INF, NA;
    std::uint64_t const payload = 0xfff8000000000123;
    std::memcpy(&matrix(1, 2), &payload, sizeof payload);
    auto const path = scratch.Path("file");
    WriteExchange(path, std::make_shared<Eigen::MatrixXd>(matrix));
    CHECK(ReadFile(path)
          == "matrix 2 3\n"
                 + Bytes({matrix(0, 0), matrix(1, 0), matrix(0, 1), matrix(1, 1), matrix(0, 2), 0})
                       .substr(0, 40)
                 + std::string("\x23\x01\0\0\0\0\xf8\xff", 8));
    auto const back = ReadExchange(path);
    CHECK(SameBits(*std::get<std::shared_ptr<Eigen::MatrixXd>>(back.object), matrix));
    CHECK(back.warning == "");
}

TEST_CASE("a matrix without elements keeps its shape")
{
    Scratch const scratch;
    auto const path = scratch.Path("file");
    WriteExchange(path, std::make_shared<Eigen::MatrixXd>(0, 3));
    auto const back = std::get<std::shared_ptr<Eigen::MatrixXd>>(ReadExchange(path).object);
    CHECK(back->rows() == 0);
    CHECK(back->cols() == 3);
}

TEST_CASE("a dataset goes and comes back with its names, texts and missing values")
{
    Scratch const scratch;
    auto const path = scratch.Path("file");
    WriteExchange(path, MakeMixed());
    CHECK(ReadFile(path) == MIXED);
    auto const back = ReadExchange(path);
    CHECK(SameBits(*std::get<std::shared_ptr<Dataset>>(back.object), *MakeMixed()));
    CHECK(back.warning == "");
}

TEST_CASE("names that are not legal are made so, and a warning tells")
{
    auto const back = Read("dataset 1 3\nnumber my end\n" + Bytes({1}) + "number x\n" + Bytes({2})
                           + "number x\n" + Bytes({3}));
    auto const& names = std::get<std::shared_ptr<Dataset>>(back.object)->varNames;
    CHECK(names[1] == "my_end");
    CHECK(names[2] == "x");
    CHECK(names[3] == "x_2");
    CHECK(back.warning
          == "Names in \"what came back\" were changed to make them legal and unique: \"my end\" to "
             "\"my_end\", "
             "\"x\" to \"x_2\".");
}

TEST_CASE("every missing value of a dataset is the same one")
{
    std::string bytes = Bytes({0});
    std::uint64_t const payload = 0x7ff00000000007a2;
    std::memcpy(bytes.data(), &payload, sizeof payload);
    auto const back = std::get<std::shared_ptr<Dataset>>(Read("dataset 1 1\nnumber x\n" + bytes).object);
    CHECK(SameBits(back->data.col(1), Eigen::MatrixXd::Constant(1, 1, NA)));
}

TEST_CASE("a line may be longer than the pieces in which a file is read, up to a bound")
{
    auto const nameOf = [](std::size_t length)
    {
        std::string const line = "number " + std::string(length - 7, 'x') + "\n";
        auto const back =
            std::get<std::shared_ptr<Dataset>>(Read("dataset 1 1\n" + line + Bytes({7})).object);
        CHECK(back->data(0, 1) == 7.0);
        return back->varNames[1].ToStdString().size();
    };
    for (std::size_t length : {20, 999, 1000, 1001, 2000, 54321, 99999})
        CHECK(nameOf(length) == length - 7);
    CHECK(Failure("dataset 1 1\nnumber " + std::string(100000 - 7, 'x') + "\n" + Bytes({7}))
          == "what came back is torn");
}

TEST_CASE("a torn file is an error, and no reason to ask for memory")
{
    for (std::string const& torn : std::vector<std::string>{"",
                                                            "matrix 1 1",
                                                            "matrix 1 1\n",
                                                            "matrix 1 1\n1234567",
                                                            "matrix 1 1\n123456789",
                                                            "matrix -1 1\n",
                                                            "matrix 2147483648 1\n",
                                                            "matrix 2147483647 2147483647\n",
                                                            "matrix 1\n",
                                                            "model 1 1\n" + Bytes({1}),
                                                            "dataset 1 1\nnumber x\n",
                                                            "dataset 1 1\nnumber x\n1234567",
                                                            "dataset 2147483647 1\nnumber x\n",
                                                            "dataset 2147483647 1\ntext 9 x\n123456789",
                                                            "dataset 1 1\nother x\n" + Bytes({1}),
                                                            "dataset 1 1\ntext x\na" + NUL,
                                                            "dataset 1 1\ntext 2 x\na",
                                                            "dataset 1 1\ntext 2 x\nab",
                                                            "dataset 2 1\ntext 2 x\na" + NUL,
                                                            "dataset 1 1\ntext 2 x\n" + NUL + NUL,
                                                            "dataset 1 1\ntext 18446744073709551615 x\n",
                                                            "dataset 1 1\nnumber x\n" + Bytes({1, 2})})
    {
        INFO(torn);
        CHECK(Failure(torn) == "what came back is torn");
    }
    CHECK(Failure("dataset 0 1\nnumber x\n")
          == "a dataset that comes back needs a variable and an observation at least");
    CHECK(Failure("dataset 1 0\n")
          == "a dataset that comes back needs a variable and an observation at least");
    CHECK(Failure("dataset 1 1\ntext 2 x\n\xe9" + NUL) == "a text that came back is not in UTF-8");
}

TEST_CASE("where no file can be there is an error that names it")
{
    CHECK(ErrorOf([] { WriteExchange("/nowhere/at/all", std::make_shared<Eigen::MatrixXd>(1, 1)); })
          == "\"/nowhere/at/all\" cannot be written: No such file or directory");
}
