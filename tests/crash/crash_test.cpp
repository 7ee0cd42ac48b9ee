// Kills a process that saves vouchers, again and again, and looks at what is left.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <random>
#include <thread>

#include "tests/engines/small_books.h"

namespace tests {

namespace {

constexpr int kills = 250;

// Head and four lines that balance, in one atomic batch, as the program saves a voucher.
std::string voucher(int number) {
    const std::string n = std::to_string(number);
    std::string batch = "INSERT INTO HEAD VALUES (" + n + ",'2024-01');";
    for (int line = 1; line <= 4; ++line) {
        const std::string amount = std::to_string(number % 1000 + line) + ".25";
        batch += "INSERT INTO LINE VALUES (" + n + "," + std::to_string(line) + ",'1001'," +
                 (line % 2 == 1 ? amount : "-" + std::to_string(number % 1000 + line - 1) + ".25") +
                 ");";
    }
    return batch + "UPDATE TOTAL SET N=N+1";
}

// Whether each save is a transaction of its own, or all of them are one that never ends.
enum class Saves { Apart, AsOneUnit };

// Saves vouchers until it is killed; each answered number goes into the pipe.
[[noreturn]] void save_for_ever(const std::string& path, int first, int pipe, Saves saves) {
    engines::OpenOptions options;
    if (saves == Saves::AsOneUnit) options.cache_bytes = 1 << 16; // so that much goes to the disk
    const auto session = open(path, options);
    if (saves == Saves::AsOneUnit && !session->begin().ok()) _exit(2);
    for (int number = first;; ++number) {
        if (!run_atomically(*session, voucher(number)).ok()) _exit(3);
        if (write(pipe, &number, sizeof number) != sizeof number) _exit(4);
    }
}

// Runs a child for so long and gives the last number it answered, or what came before.
int last_answer_of_killed_child(const std::string& path, int answered,
                                std::chrono::microseconds life, Saves saves = Saves::Apart) {
    int ends[2] = {-1, -1};
    EXPECT_EQ(pipe(ends), 0);
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        save_for_ever(path, answered + 1, ends[1], saves);
    }
    close(ends[1]);
    std::this_thread::sleep_for(life);
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status)) << "the child gave up by itself: " << WEXITSTATUS(status);
    for (int number = 0; read(ends[0], &number, sizeof number) == sizeof number;) {
        answered = number;
    }
    close(ends[0]);
    return answered;
}

// Empty books of heads, lines and a count of both.
void create_books(const std::string& path) {
    engines::OpenOptions options;
    options.create = true;
    const auto session = open(path, options);
    ASSERT_TRUE(run(*session,
                    "CREATE TABLE HEAD (N int NOT NULL PRIMARY KEY, QJ varchar(7));"
                    "CREATE TABLE LINE (N int NOT NULL, L int NOT NULL, KM varchar(20),"
                    " J decimal(18,2), PRIMARY KEY (N,L));"
                    "CREATE INDEX IX_LINE ON LINE(KM);"
                    "CREATE TABLE TOTAL (N int); INSERT INTO TOTAL VALUES (0)")
                    .ok());
}

} // namespace

TEST(Crash, every_answered_voucher_is_there_and_none_is_half_done) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    create_books(path);
    std::mt19937 random(20240131);
    std::uniform_int_distribution<int> lives(500, 45000);
    int answered = 0;
    for (int round = 0; round < kills; ++round) {
        answered =
            last_answer_of_killed_child(path, answered, std::chrono::microseconds(lives(random)));
        const auto session = open(path);
        const int saved = std::stoi(cell(*session, "SELECT COUNT(*) FROM HEAD"));
        // The last save may have become lasting before its answer was written.
        ASSERT_GE(saved, answered);
        ASSERT_LE(saved, answered + 1);
        ASSERT_EQ(cell(*session, "SELECT MAX(N) FROM HEAD"),
                  saved == 0 ? "NULL" : std::to_string(saved));
        ASSERT_EQ(cell(*session, "SELECT N FROM TOTAL"), std::to_string(saved));
        ASSERT_EQ(cell(*session, "SELECT COUNT(*) FROM LINE"), std::to_string(4 * saved));
        ASSERT_EQ(cell(*session, "SELECT COUNT(*) FROM (SELECT N FROM LINE GROUP BY N HAVING "
                                 "SUM(J)<>0 OR COUNT(*)<>4) q"),
                  "0");
        if (round % 25 == 24) {
            ASSERT_TRUE(session->check_integrity().empty());
        }
        answered = saved;
    }
    // Enough was saved for the kills to have met saves under way.
    EXPECT_GT(answered, kills / 4);
}

TEST(Crash, of_a_unit_of_work_that_was_not_kept_nothing_is_left) {
    const TemporaryFolder folder;
    const std::string path = folder.file("a.zf");
    create_books(path);
    int answered = 0;
    for (int round = 0; round < 20; ++round) {
        const auto life = std::chrono::milliseconds(20 + 15 * round);
        answered += last_answer_of_killed_child(path, 0, life, Saves::AsOneUnit);
        const auto session = open(path);
        ASSERT_EQ(cell(*session, "SELECT COUNT(*) FROM HEAD"), "0");
        ASSERT_EQ(cell(*session, "SELECT COUNT(*) FROM LINE"), "0");
        ASSERT_EQ(cell(*session, "SELECT N FROM TOTAL"), "0");
        ASSERT_TRUE(session->check_integrity().empty());
    }
    EXPECT_GT(answered, 200) << "too little was saved for the kills to mean anything";
}

} // namespace tests
