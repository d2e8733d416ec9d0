// The connection to the one database file, with statements and transactions as objects.
#pragma once
#include "common/Przestrzenie.h"
#include <memory>
#include <QByteArray>
#include <QString>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace tornel::store {

class Polaczenie;
class ZapisDziennika;

/// A prepared statement. Positions of parameters and columns count from 0. Every failure throws `BladBazy`.
class Instrukcja {
public:
    Instrukcja(Polaczenie& polaczenie, std::string_view sql);
    ~Instrukcja();
    Instrukcja(Instrukcja&& inna) noexcept;
    Instrukcja(const Instrukcja&) = delete;
    Instrukcja& operator=(const Instrukcja&) = delete;
    Instrukcja& operator=(Instrukcja&&) = delete;

    Instrukcja& wiaz(int nr, qint64 liczba);
    Instrukcja& wiaz(int nr, double liczba);
    Instrukcja& wiaz(int nr, std::string_view utf8); ///< copied
    Instrukcja& wiaz(int nr, const QString& tekst);
    Instrukcja& wiazBajty(int nr, const QByteArray& bajty); ///< copied
    Instrukcja& wiazNull(int nr);

    /// Steps to the next row; false past the last one.
    [[nodiscard]] bool wiersz();
    /// Runs a statement that gives no rows and makes it ready for the next run.
    void wykonaj();
    /// Ready for new values.
    void od_nowa();

    [[nodiscard]] bool jestNull(int kolumna) const;
    [[nodiscard]] int typ(int kolumna) const; ///< SQLITE_INTEGER and so on
    [[nodiscard]] qint64 liczba(int kolumna) const;
    [[nodiscard]] double rzeczywista(int kolumna) const;
    [[nodiscard]] std::string_view utf8(int kolumna) const; ///< valid until the next step
    [[nodiscard]] QString tekst(int kolumna) const;

private:
    Instrukcja& zwiazana(int wynik);
    Polaczenie* polaczenie_;
    sqlite3_stmt* stmt_ = nullptr;
};

/// The database file, held exclusively from opening to closing: a second program cannot open it.
class Polaczenie {
public:
    enum class Sposob { Istniejaca, Nowa };

    /// Opens `sciezka`. Throws `BladBazy` that names the file if it is missing (`Istniejaca`), already there
    /// (`Nowa`), no database, damaged, read-only or held by another program.
    Polaczenie(const QString& sciezka, Sposob sposob);
    ~Polaczenie();
    Polaczenie(const Polaczenie&) = delete;
    Polaczenie& operator=(const Polaczenie&) = delete;

    /// Runs statements without parameters (DDL).
    void wykonaj(std::string_view sql);
    [[nodiscard]] bool jestTabela(const QString& nazwa);
    [[nodiscard]] const QString& sciezka() const { return sciezka_; }
    [[nodiscard]] qint64 ostatniWiersz() const; ///< rowid of the last insert
    [[nodiscard]] bool wTransakcji() const;
    /// Keeps a journal from now on: every action writes what it changed as a part of itself.
    void WlaczDziennik();
    /// None is kept any more: what follows is no clerk's work.
    void WylaczDziennik();
    /// Null while none is kept.
    [[nodiscard]] ZapisDziennika* dziennik() const { return dziennik_.get(); }
    /// The name of the action that is open, empty outside one.
    [[nodiscard]] const QString& czynnosc() const { return czynnosc_; }
    [[nodiscard]] sqlite3* uchwyt() const { return baza_; }
    /// Throws `BladBazy` with the engine's cause, the file, and what could not be done: the action that is
    /// open, or else `krok`.
    [[noreturn]] void zglosBlad(const QString& krok) const;

private:
    friend class Transakcja;
    QString sciezka_;
    QString czynnosc_;
    sqlite3* baza_ = nullptr;
    std::unique_ptr<ZapisDziennika> dziennik_;
};

/// One clerk's action. Rolls back unless `zatwierdz` ran. Inside an open transaction it joins that one: then
/// only the outermost object begins, commits or rolls back, and its name stands.
class Transakcja {
public:
    /// `czynnosc`: what the clerk does, in Polish words without a full stop, as "Nowy miesiąc 07.2001".
    /// Failures name it.
    Transakcja(Polaczenie& polaczenie, QStringView czynnosc);
    ~Transakcja();
    Transakcja(const Transakcja&) = delete;
    Transakcja& operator=(const Transakcja&) = delete;
    /// Commits. A failed commit throws `BladBazy`, and the whole action is undone in the file.
    void zatwierdz();
    [[nodiscard]] bool dotyczy(const Polaczenie& polaczenie) const { return &polaczenie_ == &polaczenie; }

private:
    Polaczenie& polaczenie_;
    bool zewnetrzna_;
    bool zatwierdzona_ = false;
};

/// Removes a database file that could not be made, with its journal.
void UsunPlikBazy(const QString& sciezka);

/// An SQL name in double quotes; the one place where names are quoted.
[[nodiscard]] QByteArray nazwaSql(std::string_view nazwa);

} // namespace tornel::store
