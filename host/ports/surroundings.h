// Clock, settings store and random source: what a test or the driver must be able to fix.
#pragma once

#include <string>

#include "host/values/date.h"

namespace host {

class Clock {
public:
    virtual ~Clock() = default;
    virtual DateTime now() const = 0;
    Date today() const { return now().date; }
};

// Small remembered values (check boxes, levels, column widths), one section a company or form.
// Reading a missing value gives `fallback`; writing is durable when it returns.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual std::string read(const std::string& section, const std::string& name,
                             const std::string& fallback) const = 0;
    virtual void write(const std::string& section, const std::string& name,
                       const std::string& value) = 0;
};

class RandomSource {
public:
    virtual ~RandomSource() = default;
    virtual void fill(unsigned char* bytes, std::size_t count) = 0;
};

} // namespace host
