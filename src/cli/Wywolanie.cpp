#include "cli/Wywolanie.h"
#include "common/Daty.h"
#include "common/Liczby.h"
#include "personnel/Pracownicy.h"
#include "store/ZapisDziennika.h"
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

namespace tornel::cli {

QString Argumenty::wartosc(const QString& opcja) const {
    const QStringList wartosci = opcje.value(opcja);
    return wartosci.isEmpty() ? QString() : wartosci.last();
}

Wywolanie::Wywolanie(Argumenty podane, QString folder, Rozmowa& strona)
    : argumenty(std::move(podane)), folderProgramu(std::move(folder)), rozmowa(strona) {}

Otoczenie& Wywolanie::otoczenie() {
    if (!program_) {
        program_ = std::make_unique<Program>(sciezkaBazy(), folderProgramu, rozmowa);
        ZapisDziennika* dziennik = program_->sesja().cnPlace.dziennik();
        dziennik->UstawZegar([] { return QDateTime::currentDateTime(); });
        dziennik->UstawUzytkownika([] { return QStringLiteral("konsola"); });
    }
    return program_->otoczenie();
}

QString Wywolanie::sciezkaBazy() {
    const QString baza = QStringLiteral("baza");
    return argumenty.ma(baza) ? argumenty.wartosc(baza) : ZnajdzBaze(folderProgramu, rozmowa);
}

void Wywolanie::pisz(const QString& linia) { wyjscie_ += linia.toUtf8() + '\n'; }

void Wywolanie::pisz(const QJsonValue& wartosc) {
    const QJsonDocument dokument =
        wartosc.isArray() ? QJsonDocument(wartosc.toArray()) : QJsonDocument(wartosc.toObject());
    wyjscie_ += dokument.toJson(QJsonDocument::Compact) + '\n';
}

void Wywolanie::piszTabele(const QList<QStringList>& wiersze, const QList<bool>& doPrawej) {
    QList<qsizetype> szerokosci(doPrawej.size(), 0);
    for (const QStringList& wiersz : wiersze)
        for (qsizetype i = 0; i < wiersz.size(); ++i)
            szerokosci[i] = std::max(szerokosci[i], wiersz[i].size());
    for (const QStringList& wiersz : wiersze) {
        QString linia;
        for (qsizetype i = 0; i < wiersz.size(); ++i) {
            if (i > 0) linia += QStringLiteral("  ");
            linia += doPrawej[i] ? wiersz[i].rightJustified(szerokosci[i])
                                 : wiersz[i].leftJustified(szerokosci[i]);
        }
        while (linia.endsWith(QLatin1Char(' '))) linia.chop(1);
        pisz(linia);
    }
}

RokMies miesiacZTekstu(const QString& tekst) {
    static const QRegularExpression wzor(QStringLiteral("^([0-9]{4})-(0[1-9]|1[0-2])$"));
    const QRegularExpressionMatch czesci = wzor.match(tekst);
    if (!czesci.hasMatch())
        throw ZleUzycie(QStringLiteral("\"%1\" nie jest miesiącem zapisanym jako RRRR-MM.").arg(tekst));
    return {czesci.captured(1).toInt(), czesci.captured(2).toInt()};
}

int liczbaZTekstu(const QString& tekst, int min, int max, const QString& nazwa) {
    const auto liczba = CzytajLiczbe(tekst, min, max);
    if (!liczba)
        throw ZleUzycie(QStringLiteral("%1: \"%2\" nie jest liczbą od %3 do %4.")
                            .arg(nazwa, tekst, QString::number(min), QString::number(max)));
    return static_cast<int>(*liczba);
}

qint64 numerPracownikaZTekstu(const QString& tekst) {
    return liczbaZTekstu(tekst, 1, static_cast<int>(kNajwyzszyNumer), QStringLiteral("Numer pracownika"));
}

QList<qint64> podaniPracownicy(const Wywolanie& w) {
    const QString pracownik = QStringLiteral("pracownik");
    const QStringList dalsze = w.argumenty.pozycje.mid(1);
    if (!dalsze.isEmpty() && !w.argumenty.ma(pracownik))
        throw ZleUzycie(QStringLiteral("Za dużo argumentów."));
    QList<qint64> wynik;
    for (const QString& numer : w.argumenty.opcje.value(pracownik) + dalsze)
        wynik.append(numerPracownikaZTekstu(numer));
    return wynik;
}

QString tekstMiesiaca(RokMies miesiac) {
    return FormatRoku(miesiac.rok) + QLatin1Char('-') + FormatMiesiaca(miesiac.mies);
}

} // namespace tornel::cli
