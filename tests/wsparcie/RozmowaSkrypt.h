// The user's side played from a script: a queue of expected texts with their answers.
#pragma once
#include "common/Rozmowa.h"
#include "wsparcie/Przestrzen.h"
#include <deque>
#include <gtest/gtest.h>
#include <limits>
#include <ostream>
#include <QString>
#include <QStringList>
#include <variant>

namespace tornel::testy {

QT_BEGIN_NAMESPACE
/// How GoogleTest prints a text that differs.
inline void PrintTo(const QString& tekst, std::ostream* strumien) {
    *strumien << '"' << tekst.toStdString() << '"';
}
QT_END_NAMESPACE

enum class Odpowiedz { Tak, Nie, Anuluj };

/// A text that is not the next expected one fails the test, and so does one that was never asked for. Texts
/// are compared exactly; the title only where the script names it.
class RozmowaSkrypt : public Rozmowa {
public:
    RozmowaSkrypt() = default;
    RozmowaSkrypt(const RozmowaSkrypt&) = delete;
    RozmowaSkrypt& operator=(const RozmowaSkrypt&) = delete;
    ~RozmowaSkrypt() override {
        for (const Oczekiwanie& o : oczekiwania_) ADD_FAILURE() << "never shown: " << o.tekst.toStdString();
    }

    void spodziewaj(const QString& tekst, Styl styl, const QString& tytul = {}) { dodaj(tekst, styl, tytul); }
    void spodziewaj(const QString& tekst, Odpowiedz odpowiedz, const QString& tytul = {}) {
        dodaj(tekst, odpowiedz, tytul);
    }
    /// An input box; nothing for `odpowiedz` cancels it.
    void spodziewaj(const QString& tekst, const std::optional<QString>& odpowiedz,
                    const QString& tytul = {}) {
        dodaj(tekst, odpowiedz, tytul);
    }
    /// Each progress from now on is stopped at this step.
    void przerwijPostep(int krok) { przerwij_ = krok; }
    /// Everything expected has been shown.
    [[nodiscard]] bool gotowa() const { return oczekiwania_.empty(); }
    /// The texts of the progress steps, in order.
    [[nodiscard]] const QStringList& kroki() const { return kroki_; }

    void komunikat(const QString& tekst, Styl styl, const QString& tytul = domyslnyTytul()) override {
        const Styl oczekiwany = zdejmij<Styl>("message", tekst, tytul).value_or(styl);
        EXPECT_EQ(static_cast<int>(oczekiwany), static_cast<int>(styl))
            << "style of: " << tekst.toStdString();
    }
    [[nodiscard]] bool pytanie(const QString& tekst, const QString& tytul = domyslnyTytul()) override {
        return zdejmij<Odpowiedz>("question", tekst, tytul).value_or(Odpowiedz::Nie) == Odpowiedz::Tak;
    }
    [[nodiscard]] std::optional<bool> pytanieZAnulowaniem(const QString& tekst,
                                                          const QString& tytul = domyslnyTytul()) override {
        const auto odpowiedz = zdejmij<Odpowiedz>("question", tekst, tytul).value_or(Odpowiedz::Nie);
        return odpowiedz == Odpowiedz::Anuluj ? std::nullopt : std::optional(odpowiedz == Odpowiedz::Tak);
    }
    [[nodiscard]] std::optional<QString> wprowadz(const QString& tekst, const QString& tytul,
                                                  const QString& = {}) override {
        return zdejmij<std::optional<QString>>("input box", tekst, tytul).value_or(std::nullopt);
    }
    [[nodiscard]] std::unique_ptr<Postep> postep(const QString&, int) override {
        return std::make_unique<PostepSkryptu>(*this);
    }

private:
    using Reakcja = std::variant<Styl, Odpowiedz, std::optional<QString>>;
    struct Oczekiwanie {
        QString tekst;
        Reakcja reakcja;
        QString tytul;
    };
    class PostepSkryptu : public Postep {
    public:
        explicit PostepSkryptu(RozmowaSkrypt& skrypt) : skrypt_(skrypt) {}
        [[nodiscard]] bool krok(int krok, const QString& tekst) override {
            skrypt_.kroki_ += tekst;
            return krok < skrypt_.przerwij_;
        }

    private:
        RozmowaSkrypt& skrypt_;
    };

    void dodaj(const QString& tekst, Reakcja reakcja, const QString& tytul) {
        oczekiwania_.push_back({tekst, std::move(reakcja), tytul});
    }

    /// The reaction to `tekst`; the script stays where it is when another text or kind was due.
    template <typename T>
    std::optional<T> zdejmij(const char* rodzaj, const QString& tekst, const QString& tytul) {
        if (oczekiwania_.empty()) {
            ADD_FAILURE() << "unexpected " << rodzaj << ": " << tekst.toStdString();
            return {};
        }
        const Oczekiwanie& nastepne = oczekiwania_.front();
        const T* reakcja = std::get_if<T>(&nastepne.reakcja);
        if (!reakcja || nastepne.tekst != tekst) {
            ADD_FAILURE() << "unexpected " << rodzaj << ": " << tekst.toStdString()
                          << "\nnext in the script: " << nastepne.tekst.toStdString();
            return {};
        }
        EXPECT_TRUE(nastepne.tytul.isNull() || nastepne.tytul == tytul) << "title: " << tytul.toStdString();
        const T wynik = *reakcja;
        oczekiwania_.pop_front();
        return wynik;
    }

    std::deque<Oczekiwanie> oczekiwania_;
    QStringList kroki_;
    int przerwij_ = std::numeric_limits<int>::max();
};

} // namespace tornel::testy
