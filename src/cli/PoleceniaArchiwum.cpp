#include "cli/Polecenia.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "rules/Stale.h"
#include "start/Archiwum.h"
#include <QDateTime>
#include <QJsonArray>

namespace tornel::cli {

namespace {

const QString kNazwa = QStringLiteral("nazwa");
const QString kKatalog = QStringLiteral("katalog");
constexpr int kStalaArchiwum = 701;

int archiwum(Wywolanie& w) {
    const Otoczenie& o = w.otoczenie();
    const QDate dzis = QDate::currentDate();
    const QString nazwa = w.argumenty.ma(kNazwa) ? w.argumenty.wartosc(kNazwa)
                                                 : dzis.toString(QStringLiteral("'ARCH'yyyy_MM_dd"));
    const auto zlecenie = TworzArchiwum(w.rozmowa, o.sesja.cnPlace.sciezka(),
                                        FolderArchiwow(o.stale.ArchPath, w.folderProgramu), dzis, nazwa);
    if (!zlecenie) return status::Odmowa;
    DopiszArchiwum(o.sesja.cnPlace, *zlecenie);
    w.zamknijBaze();
    const OpisArchiwum wynik = SkopiujDoArchiwum(*zlecenie);
    w.rozmowa.komunikat(
        QStringLiteral("Archiwum zostało utworzone i sprawdzone: %1.").arg(NapisTresci(wynik)),
        Styl::Informacja);
    w.pisz(wynik.plik);
    return status::Wykonane;
}

/// The folder of archives of a database that perhaps cannot be opened any more.
QString folderArchiwow(Wywolanie& w, const QString& baza) {
    if (w.argumenty.ma(kKatalog)) return w.argumenty.wartosc(kKatalog);
    QString stala;
    try {
        stala = PodgladPliku(baza).stala(kStalaArchiwum);
    } catch (const BladBazy& blad) {
        w.rozmowa.komunikat(blad.komunikat() + QStringLiteral(" Archiwa szukane są w katalogu programu; inny "
                                                              "wskazuje --katalog."),
                            Styl::Wykrzyknik);
    }
    return FolderArchiwow(stala, w.folderProgramu);
}

int lista(Wywolanie& w) {
    const QList<OpisArchiwum> archiwa = ListaArchiwow(folderArchiwow(w, w.sciezkaBazy()));
    if (w.json()) {
        QJsonArray json;
        for (const OpisArchiwum& a : archiwa)
            json.append(QJsonObject{{kKatalog, a.katalog},
                                    {QStringLiteral("data"), a.data.toString(Qt::ISODate)},
                                    {QStringLiteral("rozmiar"), a.rozmiar},
                                    {QStringLiteral("miesiace"), a.tresc.miesiecy},
                                    {QStringLiteral("pracownicy"), a.tresc.pracownikow},
                                    {QStringLiteral("uwaga"), a.uwaga}});
        w.pisz(QJsonValue(json));
        return status::Wykonane;
    }
    QList<QStringList> wiersze{{QStringLiteral("KATALOG"), QStringLiteral("DATA"), QStringLiteral("ROZMIAR"),
                                QStringLiteral("MIESIĄCE"), QStringLiteral("ZAKRES"),
                                QStringLiteral("PRACOWNICY"), QStringLiteral("UWAGA")}};
    for (const OpisArchiwum& a : archiwa)
        wiersze.append({a.katalog, a.data.toString(QStringLiteral("dd-MM-yyyy HH:mm")),
                        NapisRozmiaru(a.rozmiar), QString::number(a.tresc.miesiecy), NapisMiesiecy(a.tresc),
                        QString::number(a.tresc.pracownikow), a.uwaga});
    w.piszTabele(wiersze, {false, false, true, true, false, true, false});
    return status::Wykonane;
}

int przywroc(Wywolanie& w) {
    const QString baza = w.sciezkaBazy();
    const OpisArchiwum wybrane = ZnajdzArchiwum(folderArchiwow(w, baza), w.argumenty.pozycje.first());
    if (!ZgodaNaPrzywrocenie(w.rozmowa, wybrane, baza)) return status::Odmowa;
    const QString kopia = PrzywrocArchiwum(baza, wybrane.plik, QDateTime::currentDateTime());
    if (!kopia.isEmpty())
        w.rozmowa.komunikat(QStringLiteral("Poprzednia baza danych jest w pliku „%1”.").arg(kopia),
                            Styl::Informacja);
    w.pisz(baza);
    return status::Wykonane;
}

} // namespace

QList<Polecenie> poleceniaArchiwum() {
    return {
        {u"archiwum lista",
         u"[--katalog KAT]",
         u"archiwa w katalogu ze stałej 701 albo w KAT: data, rozmiar, miesiące, pracownicy; baza może być "
         u"uszkodzona",
         0,
         0,
         {{kKatalog, u"KAT"}},
         lista},
        {u"archiwum przywroc",
         u"ARCHIWUM [--katalog KAT]",
         u"odkłada kopię obecnej bazy obok niej i zastępuje ją archiwum; pyta przedtem",
         1,
         1,
         {{kKatalog, u"KAT"}},
         przywroc},
        {u"archiwum",
         u"[--nazwa KATALOG]",
         u"tworzy sprawdzoną kopię bazy w katalogu pod stałą 701 i wypisuje jej ścieżkę",
         0,
         0,
         {{kNazwa, u"KATALOG"}},
         archiwum},
    };
}

} // namespace tornel::cli
