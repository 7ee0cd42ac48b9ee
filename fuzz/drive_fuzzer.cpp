// Any bytes at all as requests to the driver: each line is answered, whatever it says.
#include <cstdlib>
#include <sstream>

#include "automation/drive/driver.h"
#include "automation/drive/sample_forms.h"
#include "automation/drive/stream_lines.h"
#include "host/ports/host.h"
#include "tests/support/fake_data.h"
#include "tests/support/surroundings.h"

namespace {

std::size_t lines_in(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

// Serves the requests on the driver's sample forms; answers what was written.
std::string converse(const std::string& requests) {
    std::istringstream in(requests);
    std::ostringstream out;
    automation::StreamRequests lines(in);
    automation::StreamAnswers answers(out);
    host::TForm* owner = nullptr;
    automation::Driver driver({lines, answers, [&](const host::Trecord& record) {
                                   automation::open_sample(record, *owner);
                               }});
    tests::FakeData data;
    tests::FixedClock clock("2024-03-15");
    tests::MemorySettings settings;
    tests::CountedBytes random;
    host::Host& host = host::the_host();
    host.data = &data;
    host.ui = &driver;
    host.clock = &clock;
    host.settings = &settings;
    host.random = &random;
    {
        host::TForm frame(nullptr);
        owner = &frame;
        driver.run();
        host::release_closed_forms();
    }
    host = host::Host{};
    return out.str();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string body(reinterpret_cast<const char*>(data), size);
    const std::string requests = "{\"op\":\"open\",\"code\":100}\n" + body + "\n";
    const std::string told = converse(requests);
    // One answer for the first line, and never more answers than lines.
    if (lines_in(told) < 1 || lines_in(told) > lines_in(requests)) std::abort();
    return 0;
}
