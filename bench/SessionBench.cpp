// Times design-time queries with one cleartool process per query and through the query
// session, side by side: the all-components query, and the queries the "New Baseline" page
// makes when it opens (every component of every VOB, then the activities of its view).
#include "environment/WFClearCaseOptions.h"
#include "environment/WFClearCaseQuerySession.h"
#include "environment/WFClearCaseUtils.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace {

/// Median seconds of `repeats` runs; `before` runs untimed ahead of each.
double median(int repeats, const std::function<void()>& before, const std::function<void()>& body)
{
    std::vector<double> times;
    for (int r = 0; r < repeats; ++r) {
        before();
        const auto start = std::chrono::steady_clock::now();
        body();
        times.push_back(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: bench_session CLEARTOOL VIEW REPEATS\n");
        return 2;
    }
    RegisterOptions();
    ClearCaseOptions()->SetClearToolPath(argv[1]);
    ClearCaseOptions()->SetTestForClearCaseType(false);
    const std::string view = argv[2];
    const int repeats = std::max(1, std::atoi(argv[3]));

    std::string components;
    std::string activities;
    const auto allComponents = [&] { components = CCGetAllUCMComponents(); };
    const auto openPage = [&] {
        components = CCGetAllUCMComponents();
        activities = CCGetUCMActivities(view);
    };
    const auto nothing = [] {};
    const auto fresh = [] { ClearCaseQuerySession().Reset(); };

    SetClearCaseDesignTime(false);
    const double componentsAlone = median(repeats, nothing, allComponents);
    const std::string expectedComponents = components;
    const double pageAlone = median(repeats, nothing, openPage);
    const std::string expectedActivities = activities;

    SetClearCaseDesignTime(true);
    const double componentsCold = median(repeats, fresh, allComponents);
    const double componentsWarm = median(repeats, nothing, allComponents);
    const double pageCold = median(repeats, fresh, openPage);
    const double pageWarm = median(repeats, nothing, openPage);
    if (components != expectedComponents || activities != expectedActivities || activities.empty()) {
        std::fprintf(stderr, "bench_session: the session answered differently\n");
        return 1;
    }
    const auto lines = [](const std::string& text) { return std::count(text.begin(), text.end(), '\n'); };
    // components found, then seconds: all components alone, cold, warm; page alone, cold, warm
    std::printf("%ld %.6f %.6f %.6f %.6f %.6f %.6f\n", static_cast<long>(lines(expectedComponents)), componentsAlone,
                componentsCold, componentsWarm, pageAlone, pageCold, pageWarm);
    return 0;
}
