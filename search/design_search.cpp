#include "search/design_search.h"

#include "engine/vector_state.h"
#include "search/best_candidates.h"
#include "search/pareto_front.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>

namespace {

// Candidates a thread takes at a time: enough that threads seldom meet at the shared counter,
// few enough that the last blocks share out evenly.
constexpr std::int64_t BlockSize = 64;

constexpr auto ProgressInterval = std::chrono::milliseconds(200);

// What one thread found.
struct ThreadFindings {
    ThreadFindings(SearchObjective objective, std::size_t best) : best(objective, best) {}

    std::int64_t tried = 0;
    std::int64_t refused = 0;
    std::int64_t faulted = 0;
    std::int64_t outOfCompliance = 0;
    std::int64_t compliant = 0;
    RefusalTally refusals;
    FailureTally failures;
    BestCandidates best;
    ParetoFront pareto;
    std::exception_ptr failure;
};

// The work of the search shared between its threads.
struct SharedWork {
    std::atomic<std::int64_t> next{0};
    std::atomic<std::int64_t> tried{0};
    std::mutex mutex;
    std::condition_variable finished;
    int running = 0;
};

bool stopAsked(const SearchControl& control) {
    return control.stop != nullptr && control.stop->load(std::memory_order_relaxed);
}

// The findings are kept on the thread's own stack while it works and handed over at the end:
// threads that counted side by side in one array would share cache lines and slow each other.
ThreadFindings tryCandidates(const SearchRequest& request, const SearchControl& control,
                             SharedWork& work) {
    ThreadFindings findings(request.objective, request.best);
    CandidateRunner runner(request.project, request.grid, request.settings, request.prices);
    const std::int64_t total = request.grid.count();
    while (!stopAsked(control)) {
        const std::int64_t start = work.next.fetch_add(BlockSize, std::memory_order_relaxed);
        if (start >= total) {
            break;
        }
        const std::int64_t end = std::min(start + BlockSize, total);
        std::int64_t index = start;
        for (; index < end && !stopAsked(control); ++index) {
            switch (runner.run(index)) {
            case CandidateVerdict::Refused:
                ++findings.refused;
                findings.refusals.add(runner.refusal());
                break;
            case CandidateVerdict::Faulted:
                ++findings.faulted;
                break;
            case CandidateVerdict::OutOfCompliance:
                ++findings.outOfCompliance;
                findings.failures.add(runner.failedTable());
                break;
            case CandidateVerdict::Compliant:
                ++findings.compliant;
                findings.best.offer(runner.score());
                findings.pareto.offer(runner.score());
                break;
            }
        }
        findings.tried += index - start;
        work.tried.fetch_add(index - start, std::memory_order_relaxed);
    }
    return findings;
}

} // namespace

SearchOutcome RunDesignSearch(const SearchRequest& request, const SearchControl& control) {
    const int threadCount = std::max(1, control.threads);
    std::vector<ThreadFindings> findings(static_cast<std::size_t>(threadCount),
                                         ThreadFindings(request.objective, request.best));
    SharedWork work;
    {
        std::vector<std::jthread> threads;
        for (ThreadFindings& mine : findings) {
            const auto tryShare = [&request, &control, &work, &mine] {
                ClearUpperVectorState();
                try {
                    mine = tryCandidates(request, control, work);
                } catch (...) {
                    mine.failure = std::current_exception();
                }
                const std::lock_guard lock(work.mutex);
                --work.running;
                work.finished.notify_one();
            };
            {
                const std::lock_guard lock(work.mutex);
                ++work.running;
            }
            try {
                threads.emplace_back(tryShare);
            } catch (const std::system_error&) {
                // The system gives no more threads: those started share all the candidates,
                // and the outcome is the same.
                const std::lock_guard lock(work.mutex);
                --work.running;
                break;
            }
        }
        if (threads.empty()) {
            findings.front() = tryCandidates(request, control, work);
        }
        std::unique_lock lock(work.mutex);
        while (!work.finished.wait_for(lock, ProgressInterval, [&] { return work.running == 0; })) {
            if (control.progress) {
                lock.unlock();
                control.progress(work.tried.load(std::memory_order_relaxed));
                lock.lock();
            }
        }
    }

    SearchOutcome outcome;
    BestCandidates best(request.objective, request.best);
    ParetoFront pareto;
    RefusalTally refusals;
    FailureTally failures;
    for (const ThreadFindings& mine : findings) {
        if (mine.failure) {
            std::rethrow_exception(mine.failure);
        }
        outcome.tried += mine.tried;
        outcome.refused += mine.refused;
        outcome.faulted += mine.faulted;
        outcome.outOfCompliance += mine.outOfCompliance;
        outcome.compliant += mine.compliant;
        refusals.merge(mine.refusals);
        failures.merge(mine.failures);
        best.merge(mine.best);
        pareto.merge(mine.pareto);
    }
    outcome.interrupted = outcome.tried < request.grid.count();
    outcome.refusals = refusals.ranked();
    outcome.failures = failures.ranked();
    outcome.best = best.ranked();
    outcome.pareto = pareto.designs();
    return outcome;
}

DesignRecord CandidateProject(const SearchRequest& request, std::int64_t index) {
    DesignRecord record = request.project;
    request.grid.apply(index, record);
    return record;
}
