// One command at work: what was typed, where its output goes, and the database once it is needed.
#pragma once
#include "common/Blad.h"
#include "payroll/miesiace/Miesiace.h"
#include "start/Rozruch.h"
#include <memory>
#include <QHash>
#include <QJsonObject>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

namespace tornel::cli {

/// Wrong usage: what was wrong with the command line.
class ZleUzycie : public std::exception {
public:
    explicit ZleUzycie(QString powod) : powod_(std::move(powod)), utf8_(powod_.toUtf8()) {}
    [[nodiscard]] const QString& powod() const { return powod_; }
    [[nodiscard]] const char* what() const noexcept override { return utf8_.constData(); }

private:
    QString powod_;
    QByteArray utf8_;
};

/// The statuses with which the program ends.
namespace status {
inline constexpr int Wykonane = 0;
inline constexpr int Odmowa = 1;
inline constexpr int ZleUzycie = 2;
} // namespace status

/// What was typed behind the name of the command.
struct Argumenty {
    QStringList pozycje;
    QHash<QString, QStringList> opcje; ///< by name without hyphens; switches have no value

    [[nodiscard]] bool ma(const QString& opcja) const { return opcje.contains(opcja); }
    /// The last value given, empty without one.
    [[nodiscard]] QString wartosc(const QString& opcja) const;
};

class Wywolanie {
public:
    /// `rozmowa` outlives this object.
    Wywolanie(Argumenty argumenty, QString folderProgramu, Rozmowa& rozmowa);

    const Argumenty argumenty;
    const QString folderProgramu;
    Rozmowa& rozmowa;

    [[nodiscard]] bool json() const { return argumenty.ma(QStringLiteral("json")); }
    /// The session with its constants and catalogue, opened at the first call: the database named by
    /// `--baza`, else the one that the window program would open. Throws `BladStartu`.
    [[nodiscard]] Otoczenie& otoczenie();
    /// The path of that database, whether or not it can be opened.
    [[nodiscard]] QString sciezkaBazy();
    /// Ends the session, if one is open, so that the file can be copied or replaced.
    void zamknijBaze() { program_.reset(); }

    /// Adds a line to the output.
    void pisz(const QString& linia);
    /// Adds bytes as they are.
    void piszSurowo(const QByteArray& dane) { wyjscie_ += dane; }
    /// Adds a JSON object or array on one line.
    void pisz(const QJsonValue& wartosc);
    /// Adds columns of one width each, right-aligned where `doPrawej`; the first row is the heading.
    void piszTabele(const QList<QStringList>& wiersze, const QList<bool>& doPrawej);
    [[nodiscard]] const QByteArray& wyjscie() const { return wyjscie_; }

private:
    std::unique_ptr<Program> program_;
    QByteArray wyjscie_;
};

/// "2001-03". Throws `ZleUzycie`.
[[nodiscard]] RokMies miesiacZTekstu(const QString& tekst);
/// A whole number from `min` to `max`; `nazwa` is what the number means. Throws `ZleUzycie`.
[[nodiscard]] int liczbaZTekstu(const QString& tekst, int min, int max, const QString& nazwa);
/// An employee's number. Throws `ZleUzycie`.
[[nodiscard]] qint64 numerPracownikaZTekstu(const QString& tekst);
/// The values of `--pracownik` and the numbers that follow them behind the first positional argument. Throws
/// `ZleUzycie`.
[[nodiscard]] QList<qint64> podaniPracownicy(const Wywolanie& w);
/// "2001-03", the way months are typed.
[[nodiscard]] QString tekstMiesiaca(RokMies miesiac);

} // namespace tornel::cli
