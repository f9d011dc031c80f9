#include "search/sensitivity_grid.h"

#include "common/number_pattern.h"
#include "engine/vector_state.h"
#include "search/search_request_error.h"
#include "search/sensitivity_point.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <numeric>
#include <system_error>
#include <thread>

namespace {

// Points a thread takes at a time: enough that threads seldom meet at the shared counter, few
// enough that the last blocks share out evenly on a 41 x 41 grid.
constexpr std::int64_t BlockSize = 16;

constexpr auto ProgressInterval = std::chrono::milliseconds(100);

// The work of the run: the points of the grid first, then the lines through the design value
// of each field (only with two fields; with one the grid is the line).
struct Jobs {
    const SensitivityRequest& request;
    std::int64_t gridCount = 0;
    std::int64_t total = 0;
    std::array<double, 2> design{};

    std::array<double, 2> values(std::int64_t job) const {
        const std::vector<VariedField>& fields = request.grid.fields;
        std::array<double, 2> result = design;
        if (job < gridCount) {
            const std::vector<std::int64_t> places = request.grid.places(job);
            for (std::size_t i = 0; i < fields.size(); ++i) {
                result[i] = fields[i].valueAt(places[i]);
            }
            return result;
        }
        std::int64_t along = job - gridCount;
        const std::size_t line = along < fields[0].count ? 0 : 1;
        if (line == 1) {
            along -= fields[0].count;
        }
        result[line] = fields[line].valueAt(along);
        return result;
    }
};

struct SharedWork {
    std::atomic<std::int64_t> next{0};
    std::atomic<std::int64_t> done{0};
    std::mutex mutex;
    std::condition_variable finished;
    int running = 0;
};

bool stopAsked(const SensitivityControl& control) {
    return control.stop != nullptr && control.stop->load(std::memory_order_relaxed);
}

// Each point is written to its own place, so the outcome is in grid order whichever thread ran
// it.
void runJobs(const Jobs& jobs, const SensitivityControl& control, SharedWork& work,
             std::vector<SensitivityPoint>& results) {
    SensitivityRunner runner(jobs.request.project, jobs.request.settings);
    const std::span<const VariedField> fields = jobs.request.grid.fields;
    while (!stopAsked(control)) {
        const std::int64_t start = work.next.fetch_add(BlockSize, std::memory_order_relaxed);
        if (start >= jobs.total) {
            break;
        }
        const std::int64_t end = std::min(start + BlockSize, jobs.total);
        std::int64_t job = start;
        for (; job < end && !stopAsked(control); ++job) {
            const std::array<double, 2> values = jobs.values(job);
            results[static_cast<std::size_t>(job)] =
                runner.run(fields, std::span<const double>(values.data(), fields.size()));
        }
        work.done.fetch_add(job - start, std::memory_order_relaxed);
    }
}

// Runs every job on the threads; gives the number done.
std::int64_t runOnThreads(const Jobs& jobs, const SensitivityControl& control,
                          std::vector<SensitivityPoint>& results) {
    SharedWork work;
    std::vector<std::exception_ptr> failures(
        static_cast<std::size_t>(std::max(1, control.threads)));
    {
        std::vector<std::jthread> threads;
        for (std::exception_ptr& failure : failures) {
            const auto share = [&jobs, &control, &work, &results, &failure] {
                ClearUpperVectorState();
                try {
                    runJobs(jobs, control, work, results);
                } catch (...) {
                    failure = std::current_exception();
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
                threads.emplace_back(share);
            } catch (const std::system_error&) {
                // The system gives no more threads: those started share all the points.
                const std::lock_guard lock(work.mutex);
                --work.running;
                break;
            }
        }
        if (threads.empty()) {
            runJobs(jobs, control, work, results);
        }
        std::unique_lock lock(work.mutex);
        while (!work.finished.wait_for(lock, ProgressInterval, [&] { return work.running == 0; })) {
            if (control.progress) {
                lock.unlock();
                control.progress(work.done.load(std::memory_order_relaxed), jobs.total);
                lock.lock();
            }
        }
    }
    for (const std::exception_ptr& failure : failures) {
        if (failure) {
            std::rethrow_exception(failure);
        }
    }
    return work.done.load();
}

} // namespace

CandidateGrid ParseSensitivityGrid(std::span<const std::string> ranges) {
    if (ranges.size() > 2) {
        throw SearchRequestError("a sensitivity grid varies one or two fields, not " +
                                 std::to_string(ranges.size()));
    }
    CandidateGrid grid = ParseCandidateGrid(ranges);
    for (const VariedField& varied : grid.fields) {
        if (varied.field->kind != FieldKind::Real) {
            throw SearchRequestError("\"" + std::string(varied.field->name) +
                                     "\" is a count: a sensitivity grid varies real values "
                                     "such as EmCenter, YmCenter or Settle");
        }
    }
    if (grid.count() > MaxSensitivityPoints) {
        throw SearchRequestError("the grid would have more than " +
                                 FormatNumber(static_cast<double>(MaxSensitivityPoints), "#,##0") +
                                 " points: narrow a range or take a larger step");
    }
    return grid;
}

PassingRange FindPassingRange(const DesignField* field, double design, bool designPasses,
                              std::span<const double> values,
                              std::span<const SensitivityPoint> line) {
    PassingRange range;
    range.field = field;
    range.design = design;
    range.designPasses = designPasses;
    if (!designPasses) {
        return range;
    }
    range.from = design;
    range.to = design;
    std::vector<std::size_t> order(values.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return values[a] < values[b]; });

    range.openAbove = true;
    for (const std::size_t at : order) {
        if (!(values[at] > design)) {
            continue;
        }
        if (!line[at].passes()) {
            range.openAbove = false;
            range.failsAbove = values[at];
            break;
        }
        range.to = values[at];
    }
    range.openBelow = true;
    for (auto at = order.rbegin(); at != order.rend(); ++at) {
        if (!(values[*at] < design)) {
            continue;
        }
        if (!line[*at].passes()) {
            range.openBelow = false;
            range.failsBelow = values[*at];
            break;
        }
        range.from = values[*at];
    }
    return range;
}

SensitivityOutcome RunSensitivityGrid(const SensitivityRequest& request,
                                      const SensitivityControl& control) {
    const std::vector<VariedField>& fields = request.grid.fields;
    Jobs jobs{request};
    jobs.gridCount = request.grid.count();
    jobs.total = jobs.gridCount;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        jobs.design[i] = request.project.*fields[i].field->real;
    }
    if (fields.size() == 2) {
        jobs.total += fields[0].count + fields[1].count;
    }

    SensitivityOutcome outcome;
    outcome.design = RunSensitivityPoint(request.settings, request.project);
    std::vector<SensitivityPoint> results(static_cast<std::size_t>(jobs.total));
    const std::int64_t done = runOnThreads(jobs, control, results);
    outcome.interrupted = done < jobs.total;
    if (control.progress) {
        control.progress(done, jobs.total);
    }

    const bool designPasses = outcome.design.passes();
    std::int64_t lineStart = fields.size() == 2 ? jobs.gridCount : 0;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const VariedField& varied = fields[i];
        std::vector<double> values(static_cast<std::size_t>(varied.count));
        for (std::int64_t k = 0; k < varied.count; ++k) {
            values[static_cast<std::size_t>(k)] = varied.valueAt(k);
        }
        const std::span<const SensitivityPoint> line(results.data() + lineStart, values.size());
        if (!outcome.interrupted) {
            outcome.passing.push_back(
                FindPassingRange(varied.field, jobs.design[i], designPasses, values, line));
        }
        lineStart += varied.count;
    }
    results.resize(static_cast<std::size_t>(jobs.gridCount));
    outcome.points = std::move(results);
    return outcome;
}

SensitivityRun RunSensitivityRanges(const DesignRecord& project, const EngineSettings& settings,
                                    std::span<const std::string> ranges, int threads) {
    SensitivityRun run;
    run.request.grid = ParseSensitivityGrid(ranges);
    run.request.project = project;
    run.request.settings = settings;
    SensitivityControl control;
    control.threads = threads;
    run.outcome = RunSensitivityGrid(run.request, control);
    return run;
}
