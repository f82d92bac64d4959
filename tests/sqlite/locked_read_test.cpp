// SPDX-License-Identifier: MIT

// Another process locks the file in the middle of a read.
#include <array>
#include <sys/wait.h>
#include <unistd.h>

#include "project_fixture.h"

namespace hx::sqlite {

namespace {

/// One byte at a time between two processes, to wait for each other.
class Signal {
  public:
    Signal() { EXPECT_EQ(pipe(ends_.data()), 0); }
    ~Signal() {
        for (const int end : ends_) close(end);
    }
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;

    void give() const { (void)!write(ends_[1], "x", 1); }
    void await() const {
        char byte = 0;
        (void)!read(ends_[0], &byte, 1);
    }

  private:
    std::array<int, 2> ends_{};
};

/// A process of its own that locks a file exclusively when it is told to, and gives it back when it is told to. The
/// lock is asked for while somebody reads: nobody can begin to read from then on.
class Locker {
  public:
    explicit Locker(const std::string& path) : process_(fork()) {
        if (process_ == 0) work(path);
    }
    ~Locker() {
        ask_.give();  // for one that has not been told to lock
        release_.give();
        int status = 0;
        EXPECT_EQ(waitpid(process_, &status, 0), process_);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
    Locker(const Locker&) = delete;
    Locker& operator=(const Locker&) = delete;

    void lock() const {
        ask_.give();
        asked_.await();
    }
    void release() const {
        release_.give();
        released_.await();
    }

  private:
    [[noreturn]] void work(const std::string& path) const {
        sqlite3* file = nullptr;
        sqlite3_open(path.c_str(), &file);
        // Called while the lock waits for the readers that are there already.
        sqlite3_busy_handler(file, &Locker::waiting, const_cast<Locker*>(this));
        ask_.await();
        const int locked = sqlite3_exec(file, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
        release_.await();
        sqlite3_close(file);
        released_.give();
        _exit(locked == SQLITE_OK ? 0 : 1);
    }
    static int waiting(void* self, int times) {
        if (times == 0) static_cast<Locker*>(self)->asked_.give();
        return 1;
    }

    Signal ask_, asked_, release_, released_;
    pid_t process_;
};

class LockedRead : public ProjectTest {
  protected:
    // So far from each other that each row is read for itself, when they are read by their keys.
    static constexpr int rows = 20, distance = 1000;

    LockedRead() {
        RawFile file(path_);
        for (int i = 1; i <= rows; ++i) {
            file.run("INSERT INTO TrcpRecipeMember (ID, ParentID, VarRecipe) VALUES (" + std::to_string(i * distance) +
                     ", 1, 'V" + std::to_string(i) + "')");
        }
    }
    // Gives the names of the variables; calls `behind` with their number behind each.
    static std::vector<std::string> read(ado::Recordset& members, const std::function<void(std::size_t)>& behind) {
        std::vector<std::string> names;
        members.setFilter("ID > 0");
        members.scan(std::array<std::string_view, 1>{"VarRecipe"}, [&](std::span<const ado::StoredValue> values) {
            names.emplace_back(values[0].text);
            behind(names.size());
        });
        return names;
    }
};

TEST_F(LockedRead, InTheMiddleOfSpreadRowsIsAnErrorAndTheNextReadWorks) {
    const Locker locker(path_);
    const auto members = open(connect(), "TrcpRecipeMember");
    ASSERT_EQ(members->recordCount(), rows);
    std::size_t given = 0;
    const auto lockBehindTheThird = [&](std::size_t count) {
        given = count;
        if (count == 3) locker.lock();
    };
    const auto error = errorOf([&] { (void)read(*members, lockBehindTheThird); });
    EXPECT_EQ(error.number(), ado::dbErrUnspecified);
    EXPECT_NE(error.description().find("locked"), std::string::npos) << error.description();
    EXPECT_EQ(given, 3U);
    locker.release();
    const auto names = read(*members, [](std::size_t) {});
    ASSERT_EQ(names.size(), std::size_t{rows});
    EXPECT_EQ(names.back(), "V20");
}

TEST_F(LockedRead, OfAPageOfSpreadRowsIsAnErrorAndTheNextReadWorks) {
    const Locker locker(path_);
    const auto connection = connect();
    const auto members = open(connection, "TrcpRecipeMember");
    ASSERT_EQ(members->recordCount(), rows);
    members->setAbsolutePosition(rows);
    members->resync();
    {
        // Somebody reads: the lock waits for them, and nobody else gets in.
        RawFile reader(path_);
        reader.run("BEGIN");
        (void)reader.query("SELECT * FROM TrcpRecipe");
        locker.lock();
    }
    EXPECT_EQ(errorOf([&] { (void)members->field("VarRecipe").value(); }).number(), ado::dbErrUnspecified);
    EXPECT_EQ(members->absolutePosition(), rows);
    locker.release();
    EXPECT_EQ(members->field("VarRecipe").value(), Variant("V20"));
}

}  // namespace

}  // namespace hx::sqlite
