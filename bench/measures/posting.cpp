// Posting a period of 10,000 vouchers: the batch of the posting form against one scan and a
// roll-up in memory.
#include <unordered_map>

#include "bench/hand/connection.h"
#include "bench/measures/all.h"
#include "bench/measures/session.h"
#include "module/vouchers/posting_batch.h"

namespace bench {

namespace {

struct Balance {
    std::int64_t j = 0, d = 0, sy_j = 0, sy_d = 0;
};
struct Node {
    std::string code;
    int parent = -1;
    int level = 1;
    bool debit_side = true;
    bool has_parent_total = false;
    Balance moved, before;
};

// The chart in memory: parents by index, levels for the roll-up.
std::vector<Node> read_chart(hand::Connection& connection) {
    std::vector<Node> nodes;
    std::unordered_map<std::string, int> index;
    std::vector<std::string> parents;
    hand::Statement read(connection, "SELECT KM_ID, OID, KM_J, FX FROM D6801");
    while (read.step()) {
        index.emplace(std::string(read.text(0)), int(nodes.size()));
        parents.emplace_back(read.text(1));
        nodes.push_back({std::string(read.text(0)), -1, int(read.integer(2)), read.text(3) == "借",
                         false, {}, {}});
    }
    for (std::size_t i = 0; i < nodes.size(); ++i)
        if (const auto found = index.find(parents[i]); found != index.end())
            nodes[i].parent = found->second;
    return nodes;
}

void add(Balance& sum, const Balance& part) {
    sum.j += part.j, sum.d += part.d, sum.sy_j += part.sy_j, sum.sy_d += part.sy_d;
}

void scan_lines(hand::Connection& connection, const std::string& period, std::vector<Node>& nodes) {
    std::unordered_map<std::string_view, int> index;
    for (std::size_t i = 0; i < nodes.size(); ++i) index.emplace(nodes[i].code, int(i));
    hand::Statement read(connection,
                         "SELECT A.KM_ID, A.J, A.D, H.T_SY FROM D6601 H JOIN D6601A A ON "
                         "A.NOID=H.NOID WHERE H.PZQJ=?1 AND H.T=1");
    read.bind(1, period);
    while (read.step()) {
        Balance& moved = nodes[index.at(read.text(0))].moved;
        moved.j += read.integer(1), moved.d += read.integer(2);
        if (read.integer(3)) moved.sy_j += read.integer(2), moved.sy_d += read.integer(1);
    }
    hand::Statement before(connection, "SELECT KM_ID, J, D FROM D6602 WHERE QJ=?1 AND INX=1");
    const std::string previous = host::Period::parse(period)->previous().to_text();
    before.bind(1, previous);
    while (before.step())
        if (const auto found = index.find(before.text(0)); found != index.end())
            nodes[found->second].before = {before.integer(1), before.integer(2), 0, 0};
    for (int level = 5; level > 1; --level)
        for (Node& node : nodes)
            if (node.level == level && node.parent >= 0) {
                Node& parent = nodes[node.parent];
                if (!parent.has_parent_total) parent.moved = {}, parent.has_parent_total = true;
                add(parent.moved, node.moved);
            }
}

void write_rows(hand::Connection& connection, const std::string& period,
                const std::vector<Node>& nodes) {
    hand::Statement write(connection, "INSERT OR REPLACE INTO D6602 (QJ,KM_ID,INX,J,D,SY_J,SY_D) "
                                      "VALUES (?1,?2,?3,?4,?5,?6,?7)");
    for (const Node& node : nodes) {
        const Balance& m = node.moved;
        write.bind(1, period).bind(2, node.code).bind(3, std::int64_t{0}).bind(4, m.j).bind(5, m.d)
            .bind(6, m.sy_j).bind(7, m.sy_d).run();
        const std::int64_t closing = node.debit_side ? node.before.j + m.j - m.d
                                                     : node.before.d + m.d - m.j;
        write.bind(3, std::int64_t{1}).bind(4, node.debit_side ? closing : 0)
            .bind(5, node.debit_side ? 0 : closing).bind(6, std::int64_t{0})
            .bind(7, std::int64_t{0}).run();
    }
    hand::Statement flag(connection, "UPDATE D6601 SET D=1 WHERE PZQJ=?1 AND D=0 AND T=1");
    flag.bind(1, period).run();
}

void post_by_hand(hand::Connection& connection, const std::string& period) {
    connection.run("BEGIN IMMEDIATE");
    std::vector<Node> nodes = read_chart(connection);
    scan_lines(connection, period, nodes);
    write_rows(connection, period, nodes);
    connection.run("COMMIT");
}

} // namespace

std::vector<Row> posting(const BigBooks& books) {
    hand::Connection connection(books.file);
    OurSession ours(books.file);
    const std::string period = books.last.to_text();
    const auto unpost = [&] {
        ours.data().execute(module::unposting_batch(books.last), {"663", period, "Edit"});
    };
    Row row = measure("posting a period of 10,000 vouchers", 5,
                      {[&] { post_by_hand(connection, period); }, unpost},
                      {[&] {
                           ours.data().execute(module::posting_batch(books.last),
                                               {"663", period, "Edit"});
                       },
                       unpost});
    row.budget_ms = 117;
    return {row};
}

} // namespace bench
