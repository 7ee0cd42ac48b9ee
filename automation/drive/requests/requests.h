// The requests of the automation interface: each carries out one and answers its own members.
#pragma once

#include "automation/drive/request.h"

namespace automation {

class Driver;

// What comes back is put beside "ok", "messages" and "active"; a Refusal makes "ok" false.
namespace requests {

using nlohmann::json;

json open(Driver& driver, const Request& request);
json forms(Driver& driver, const Request& request);
json controls(Driver& driver, const Request& request);
json get(Driver& driver, const Request& request);
json set(Driver& driver, const Request& request);
json lookup(Driver& driver, const Request& request);
json focus(Driver& driver, const Request& request);
json key(Driver& driver, const Request& request);
json click(Driver& driver, const Request& request);
json rows(Driver& driver, const Request& request);
json footer(Driver& driver, const Request& request);
json cell(Driver& driver, const Request& request);
json row(Driver& driver, const Request& request);
json dblclick(Driver& driver, const Request& request);
json tree(Driver& driver, const Request& request);
json node(Driver& driver, const Request& request);
json answer(Driver& driver, const Request& request);
json print(Driver& driver, const Request& request);
json sql(Driver& driver, const Request& request);
json query(Driver& driver, const Request& request);
json close(Driver& driver, const Request& request);
json quit(Driver& driver, const Request& request);

} // namespace requests
} // namespace automation
