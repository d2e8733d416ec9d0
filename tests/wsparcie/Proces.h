// A forked child of the test: a second program, or one that is killed in the middle of its work.
#pragma once
#include "wsparcie/Przestrzen.h"
#include <csignal>
#include <cstdio>
#include <exception>
#include <functional>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace tornel::testy {

/// By which a child says once that it has come so far. Made before the child.
class Sygnal {
public:
    Sygnal() { EXPECT_EQ(pipe(rura_), 0); }
    ~Sygnal() {
        for (const int koniec : rura_)
            if (koniec >= 0) close(koniec);
    }
    Sygnal(const Sygnal&) = delete;
    Sygnal& operator=(const Sygnal&) = delete;

    /// In the child.
    void daj() const { EXPECT_EQ(write(rura_[1], "x", 1), 1); }
    /// In the parent; false when the child ended without a signal.
    [[nodiscard]] bool czekaj() {
        close(std::exchange(rura_[1], -1));
        char znak = 0;
        return read(rura_[0], &znak, 1) == 1;
    }

private:
    int rura_[2] = {-1, -1};
};

class Proces {
public:
    /// Runs `praca` in a child that ends with its result. Expectations that fail in the child are printed and
    /// give 97; an exception that leaves `praca` gives 98.
    explicit Proces(const std::function<int()>& praca) : pid_(fork()) {
        if (pid_ != 0) return;
        int kod = 98;
        try {
            kod = praca();
            if (testing::Test::HasFailure()) kod = 97;
        } catch (const std::exception& wyjatek) {
            std::fprintf(stderr, "the child: %s\n", wyjatek.what());
        }
        std::fflush(nullptr);
        _exit(kod);
    }
    ~Proces() { zabij(); }
    Proces(const Proces&) = delete;
    Proces& operator=(const Proces&) = delete;

    /// SIGKILL; whether the child was alive until then.
    bool zabij() {
        if (pid_ <= 0) return false;
        kill(pid_, SIGKILL);
        return wynik() == -SIGKILL;
    }
    /// Waits for the end: the exit code, or minus the number of the signal that ended it.
    [[nodiscard]] int wynik() {
        int stan = 0;
        if (pid_ <= 0 || waitpid(pid_, &stan, 0) != pid_) return -1;
        pid_ = 0;
        return WIFSIGNALED(stan) ? -WTERMSIG(stan) : WEXITSTATUS(stan);
    }

private:
    pid_t pid_;
};

} // namespace tornel::testy
