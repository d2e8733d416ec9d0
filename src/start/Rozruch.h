// The road from the command line to an open session, for the window program and the console alike.
#pragma once
#include "common/Blad.h"
#include "rules/Otoczenie.h"
#include "rules/SkladnikiPlac.h"
#include "rules/Stale.h"
#include "store/Sesja.h"
#include <functional>
#include <memory>
#include <QString>

namespace tornel::start {

/// The switches of the command line. Only `aktua` has an effect; the two others are read and kept,
/// deliberately.
struct Przelaczniki {
    bool admin = false;
    bool clrpwd = false;
    bool aktua = false;
};

/// Splits the command line at "/": the pieces from the second on, trimmed and in any case, are switches;
/// unknown ones are ignored without a word.
[[nodiscard]] Przelaczniki CzytajPrzelaczniki(const QString& wierszPolecen);

/// The path of the database: the first line of `Baza.ini` in `folderProgramu` if that file names an existing
/// one (otherwise a critical message), else `Tornel.mdb` in that folder.
[[nodiscard]] QString ZnajdzBaze(const QString& folderProgramu, Rozmowa& rozmowa);

/// Everything that lives from start to end: the session, the constants, the catalogue, and the user's side.
class Program {
public:
    /// `PStart`, the constants and the users: opens the database with its standing handles, loads the
    /// catalogue and the constants, and makes sure that one user exists. `folderProgramu` is the default of
    /// the folder constants. `przedTabelami` is what happens before any table is opened. An archive whose
    /// restore was cut off is put in place first. A file that cannot be opened, or whose tables are not those
    /// of the schema, throws `BladStartu` with the cause, the tables and the remedy.
    Program(const QString& sciezka, const QString& folderProgramu, Rozmowa& rozmowa,
            const std::function<void(Polaczenie&)>& przedTabelami = {});
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// What the start found of a program that did not end by itself, and what became of it, in one sentence
    /// or two for the clerk; empty after an ordinary end.
    [[nodiscard]] const QString& znalezione() const { return znalezione_; }

    Sesja& sesja() { return *sesja_; }
    Otoczenie& otoczenie() { return *otoczenie_; }

private:
    QString sciezka_;
    QString znalezione_;
    std::unique_ptr<Sesja> sesja_;
    Stale stale_;
    SkladnikiPlac skladniki_;
    std::unique_ptr<Otoczenie> otoczenie_;
};

/// The program cannot start: "Procedura 'PStart': błąd w lini: " with the number of the step, and the cause.
class BladStartu : public Blad {
public:
    BladStartu(int krok, const QString& przyczyna);
};

/// What the clerk can do about a database that could not be opened: by the file's state, the damaged tables
/// included.
[[nodiscard]] QString ZaleceniePrzyStarcie(const QString& sciezka);

/// Makes a new database from the template: all tables, the 45 components, the constants' defaults and the
/// user "Admin". An existing file is refused. Throws `Blad`; no file is left behind then.
void UtworzBazeZSzablonu(const QString& sciezka, const QString& folderProgramu, Rozmowa& rozmowa);

} // namespace tornel::start
