#include "workbench/estimation/ChainRunner.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <new>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include <unistd.h>

#include "workbench/engine/Error.h"
#include "workbench/engine/Progress.h"

namespace workbench
{
namespace
{
/// Between two reports of progress.
constexpr std::chrono::milliseconds REPORT_EVERY(60);

/// So many iterations go by before they are counted, so that threads do not wait for the counter.
constexpr std::int64_t COUNT_EVERY = 64;

std::string Gigabytes(double bytes)
{
    auto text = std::to_string(bytes / 1e9);
    return text.substr(0, text.find('.') + 2) + " GB";
}

Eigen::MatrixXd MakeRoom(SamplerSettings const& settings, Eigen::Index columns)
{
    double const bytes = static_cast<double>(settings.draws) * settings.chains
                         * static_cast<double>(columns) * sizeof(double);
    double const memory =
        static_cast<double>(sysconf(_SC_PHYS_PAGES)) * static_cast<double>(sysconf(_SC_PAGESIZE));
    Error const tooMuch("the draws would take " + Gigabytes(bytes)
                        + " of memory, which is too much here: choose fewer draws or chains");
    if (bytes > memory / 4.0)
        throw tooMuch;
    try
    {
        return Eigen::MatrixXd(settings.draws * settings.chains, columns);
    }
    catch (std::bad_alloc const&)
    {
        throw tooMuch;
    }
}

/// The threads of one run, and what they share.
class Pool
{
public:
    Pool(SamplerSettings const& settings, MakeChain const& make, Eigen::MatrixXd& draws)
        : m_settings(settings), m_make(make), m_draws(draws)
    {
    }

    /// All threads have ended before anything is left that they use.
    ~Pool()
    {
        m_stop = true;
        for (auto& thread : m_threads)
            thread.join();
    }

    void Start(unsigned threads)
    {
        m_threads.reserve(threads);
        try
        {
            while (m_threads.size() < threads)
            {
                std::lock_guard const lock(m_mutex);
                m_threads.emplace_back([this] { Work(); });
                ++m_working;
            }
        }
        catch (std::system_error const&)
        {
            // Fewer threads than asked for take longer, that is all.
            if (m_threads.empty())
                throw;
        }
    }

    void Wait(ProgressScope& scope)
    {
        auto const total = static_cast<std::uint64_t>(m_settings.Iterations())
                           * static_cast<std::uint64_t>(m_settings.chains);
        std::unique_lock lock(m_mutex);
        while (m_working > 0)
        {
            // Whoever hears of the progress may take long, or throw.
            lock.unlock();
            scope.Update(m_iterations, total);
            lock.lock();
            m_changed.wait_for(lock, REPORT_EVERY, [this] { return m_working == 0; });
        }
        if (m_failure)
            std::rethrow_exception(m_failure);
        scope.Update(1.0);
    }

private:
    void Work()
    {
        std::exception_ptr failure;
        try
        {
            for (int chain = m_next++; chain < m_settings.chains && !m_stop; chain = m_next++)
                Run(chain);
        }
        catch (...)
        {
            failure = std::current_exception();
            m_stop = true;
        }
        std::lock_guard const lock(m_mutex);
        if (!m_failure)
            m_failure = failure;
        --m_working;
        m_changed.notify_one();
    }

    void Run(int number)
    {
        auto const chain = m_make(number);
        std::int64_t uncounted = 0;
        auto const step = [&]
        {
            chain->Step();
            if (++uncounted < COUNT_EVERY)
                return;
            m_iterations += static_cast<std::uint64_t>(uncounted);
            uncounted = 0;
        };
        for (std::int64_t i = 0; i < m_settings.burnIn && !m_stop; ++i)
            step();
        for (std::int64_t draw = 0; draw < m_settings.draws && !m_stop; ++draw)
        {
            for (std::int64_t i = 0; i < m_settings.thin && !m_stop; ++i)
                step();
            chain->Write(m_draws.row(number * m_settings.draws + draw));
        }
    }

    SamplerSettings const& m_settings;
    MakeChain const& m_make;
    Eigen::MatrixXd& m_draws;
    std::atomic<int> m_next{0};
    std::atomic<bool> m_stop{false};
    std::atomic<std::uint64_t> m_iterations{0};
    std::mutex m_mutex;
    std::condition_variable m_changed;
    unsigned m_working = 0;       ///< Threads that are not done; guarded by the mutex.
    std::exception_ptr m_failure; ///< The same.
    std::vector<std::thread> m_threads;
};
} // namespace

Eigen::MatrixXd RunChains(SamplerSettings const& settings, Eigen::Index columns, MakeChain const& make,
                          Progress& progress, unsigned threads)
{
    auto draws = MakeRoom(settings, columns);
    if (threads == 0)
        threads = std::max(1u, std::thread::hardware_concurrency());
    ProgressScope scope(progress, "Sampling " + std::to_string(settings.draws) + " draws of "
                                      + std::to_string(settings.chains)
                                      + (settings.chains == 1 ? " chain" : " chains"));
    Pool pool(settings, make, draws);
    pool.Start(std::min(threads, static_cast<unsigned>(settings.chains)));
    pool.Wait(scope);
    return draws;
}
} // namespace workbench
