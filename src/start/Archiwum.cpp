#include "start/Archiwum.h"
#include "common/Blad.h"
#include "common/Daty.h"
#include "common/Rozmowa.h"
#include "store/Dziennik.h"
#include "store/KopiaPliku.h"
#include "store/WersjaPliku.h"
#include <algorithm>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

namespace tornel::start {

namespace {

const QString kNazwaPliku = QStringLiteral("Tornel.mdb");
const QString kTytulArchiwum = QStringLiteral("Tworzenie archiwum");

QString dziennikPliku(const QString& baza) { return baza + QStringLiteral("-journal"); }
/// The checked copy of an archive that only has to take the place of the database.
QString przywracana(const QString& baza) { return baza + QStringLiteral(".przywracana"); }
QString niegotowa(const QString& plik) { return plik + QStringLiteral(".czesc"); }

bool dobraNazwa(const QString& nazwa) {
    const auto zly = [](QChar z) { return z == u'/' || z == u'\\' || z.category() == QChar::Other_Control; };
    return !nazwa.isEmpty() && nazwa != QLatin1String(".") && !nazwa.contains(QLatin1String("..")) &&
           std::none_of(nazwa.begin(), nazwa.end(), zly);
}

void zrobKatalog(const QString& katalog) {
    if (!QDir().mkpath(katalog))
        throw Blad(
            QStringLiteral("Nie można utworzyć katalogu „%1”. Archiwum nie zostało utworzone.").arg(katalog));
}

/// The copy is what it was made from, and sound. `zrodlo` is closed.
void sprawdzKopie(const QString& zrodlo, const QString& kopia) {
    const auto odmow = [&](const QString& powod) {
        throw BladBazy(
            QStringLiteral("Kopia „%1” bazy danych „%2” nie jest dobra: %3.").arg(kopia, zrodlo, powod));
    };
    if (QFileInfo(kopia).size() != QFileInfo(zrodlo).size())
        odmow(QStringLiteral("ma %1 bajtów zamiast %2")
                  .arg(QFileInfo(kopia).size())
                  .arg(QFileInfo(zrodlo).size()));
    const PodgladPliku podgladKopii(kopia), podgladZrodla(zrodlo);
    if (const QStringList tabele = podgladKopii.uszkodzoneTabele(); !tabele.isEmpty())
        odmow(QStringLiteral("uszkodzone tabele:\n%1").arg(tabele.join(u'\n')));
    const auto wKopii = podgladKopii.liczbyWierszy();
    for (const auto& [tabela, ile] : podgladZrodla.liczbyWierszy()) {
        const auto jest = wKopii.find(tabela);
        if (jest == wKopii.end() || jest->second != ile)
            odmow(QStringLiteral("tabela %1 ma inną liczbę wierszy").arg(tabela));
    }
}

/// The databases in the folders of `bazowy`.
QStringList plikiArchiwow(const QString& bazowy) {
    QStringList wynik;
    const QDir folder(bazowy);
    for (const QString& nazwa : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Readable))
        if (const QString plik = folder.filePath(nazwa + u'/' + kNazwaPliku); QFileInfo(plik).isFile())
            wynik += plik;
    return wynik;
}

OpisArchiwum opiszArchiwum(const QString& plik) {
    const QFileInfo info(plik);
    OpisArchiwum wynik{info.dir().dirName(), plik, info.lastModified(), info.size(), {}, {}};
    try {
        const PodgladPliku podglad(plik);
        if (podglad.wersja() > static_cast<int>(KrokiWersji().size()))
            wynik.uwaga = QStringLiteral("zapisany przez nowszy program");
        wynik.tresc = podglad.tresc();
    } catch (const BladBazy& blad) {
        wynik.uwaga = blad.komunikat();
    }
    return wynik;
}

/// The present file under a name of its own, with the journal of an unfinished action if it has one.
QString odlozObecna(const QString& baza, const QDateTime& chwila) {
    if (!QFileInfo::exists(baza)) return {};
    QString kopia = NazwaKopii(baza, QStringLiteral("przed-przywroceniem"), chwila);
    // The journal first: a copy of the file alone would pass for a whole one.
    if (QFileInfo(dziennikPliku(baza)).size() > 0) KopiujZamknieta(dziennikPliku(baza), dziennikPliku(kopia));
    KopiujZamknieta(baza, kopia);
    return kopia;
}

} // namespace

QString FolderArchiwow(const QString& stala701, const QString& folderProgramu) {
    const QString folder = stala701.trimmed();
    return QDir::cleanPath(folder.isEmpty() ? folderProgramu : folder);
}

std::optional<ZlecenieArchiwum> TworzArchiwum(Rozmowa& rozmowa, const QString& baza, const QString& bazowy,
                                              QDate dzis, const std::optional<QString>& podana) {
    zrobKatalog(bazowy);
    const QString propozycja =
        QStringLiteral("ARCH%1_%2_%3")
            .arg(FormatRoku(dzis.year()), FormatMiesiaca(dzis.month()), FormatMiesiaca(dzis.day()));
    const std::optional<QString> odpowiedz =
        podana ? podana
               : rozmowa.wprowadz(QStringLiteral("Podaj nazwę katalogu dla archiwum:"), kTytulArchiwum,
                                  propozycja);
    if (!odpowiedz) return {};
    const QString nazwa = odpowiedz->trimmed();
    if (!dobraNazwa(nazwa)) {
        rozmowa.komunikat(QStringLiteral("Nazwa katalogu dla archiwum nie może być pusta ani zawierać znaków "
                                         "„/”, „\\” i „..”. Archiwum nie zostało utworzone."),
                          Styl::Wykrzyknik, kTytulArchiwum);
        return {};
    }
    ZlecenieArchiwum zlecenie{baza, QDir(bazowy).filePath(nazwa)};
    const bool nowyKatalog = !QFileInfo::exists(zlecenie.katalog);
    zrobKatalog(zlecenie.katalog);
    if (QFileInfo::exists(zlecenie.plik())) {
        rozmowa.komunikat(QStringLiteral("Plik Tornel.mdb w katalogu ") +
                              QDir::toNativeSeparators(zlecenie.katalog) +
                              QStringLiteral(" już istnieje. Nie można utworzyć archiwum. Podaj inną nazwę "
                                             "katalogu."),
                          Styl::Wykrzyknik, kTytulArchiwum);
        return {};
    }
    auto bezSladu = qScopeGuard([&] {
        if (nowyKatalog) QDir().rmdir(zlecenie.katalog);
    });
    if (!rozmowa.pytanie(QStringLiteral("Utworzenie archiwum wiąże się z koniecznością zamknięcia programu. "
                                        "Kontynuować ?"),
                         kTytulArchiwum))
        return {};
    bezSladu.dismiss();
    return zlecenie;
}

OpisArchiwum SkopiujDoArchiwum(const ZlecenieArchiwum& zlecenie) {
    const QString czesc = niegotowa(zlecenie.plik());
    auto bezSladu = qScopeGuard([&] {
        QFile::remove(czesc);
        QDir().rmdir(zlecenie.katalog); // an empty one
    });
    try {
        QFile::remove(czesc);
        KopiujZamknieta(zlecenie.baza, czesc);
        sprawdzKopie(zlecenie.baza, czesc);
        NadajNazwe(czesc, zlecenie.plik());
    } catch (const BladBazy& blad) {
        throw BladBazy(QStringLiteral("Archiwum nie zostało utworzone. %1").arg(blad.komunikat()));
    }
    bezSladu.dismiss();
    return opiszArchiwum(zlecenie.plik());
}

QString NapisRozmiaru(qint64 bajty) {
    constexpr qint64 kilo = 1024, mega = kilo * kilo;
    if (bajty < mega) return QStringLiteral("%1 KB").arg((bajty + kilo - 1) / kilo);
    const qint64 dziesiate = (bajty * 10 + mega / 2) / mega;
    return QStringLiteral("%1,%2 MB").arg(dziesiate / 10).arg(dziesiate % 10);
}

QString NapisMiesiecy(const PodgladPliku::Tresc& tresc) {
    if (tresc.miesiecy == 0) return {};
    return QStringLiteral("%1 do %2").arg(tresc.pierwszy.napis(), tresc.ostatni.napis());
}

QString NapisTresci(const OpisArchiwum& archiwum) {
    const QString zakres = NapisMiesiecy(archiwum.tresc);
    return QStringLiteral("%1, miesiące: %2%3, pracownicy: %4")
        .arg(NapisRozmiaru(archiwum.rozmiar))
        .arg(archiwum.tresc.miesiecy)
        .arg(zakres.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(zakres))
        .arg(archiwum.tresc.pracownikow);
}

QList<OpisArchiwum> ListaArchiwow(const QString& bazowy) {
    QList<OpisArchiwum> wynik;
    for (const QString& plik : plikiArchiwow(bazowy)) wynik += opiszArchiwum(plik);
    std::ranges::stable_sort(wynik, std::ranges::greater(), &OpisArchiwum::data);
    return wynik;
}

std::optional<QDateTime> OstatnieArchiwum(const QString& bazowy) {
    std::optional<QDateTime> ostatnie;
    for (const QString& plik : plikiArchiwow(bazowy))
        ostatnie = std::max(ostatnie, std::optional(QFileInfo(plik).lastModified()));
    return ostatnie;
}

OpisArchiwum ZnajdzArchiwum(const QString& bazowy, const QString& nazwa) {
    QStringList miejsca{nazwa, QDir(nazwa).filePath(kNazwaPliku)};
    if (!QFileInfo(nazwa).isAbsolute()) miejsca.prepend(QDir(bazowy).filePath(nazwa + u'/' + kNazwaPliku));
    for (const QString& miejsce : miejsca)
        if (QFileInfo(miejsce).isFile()) return opiszArchiwum(miejsce);
    throw Blad(QStringLiteral("Nie ma archiwum „%1” w katalogu „%2”.").arg(nazwa, bazowy));
}

void DopiszArchiwum(Polaczenie& polaczenie, const ZlecenieArchiwum& zlecenie) {
    if (ZapisDziennika* dziennik = polaczenie.dziennik())
        dziennik->dopiszZdarzenie(QStringLiteral("Tworzenie archiwum w pliku %1").arg(zlecenie.plik()));
}

bool ZgodaNaPrzywrocenie(Rozmowa& rozmowa, const OpisArchiwum& archiwum, const QString& baza) {
    if (!archiwum.uwaga.isEmpty()) {
        rozmowa.komunikat(
            QStringLiteral("Nie można przywrócić archiwum „%1”: %2").arg(archiwum.katalog, archiwum.uwaga),
            Styl::Wykrzyknik);
        return false;
    }
    return rozmowa.pytanieUsuwajace(
        QStringLiteral(
            "Archiwum „%1” z dnia %2 (%3) zastąpi bazę danych „%4”. Wszystko, co zapisano później, "
            "zostanie tylko w odłożonej kopii obecnej bazy. Przywrócić ?")
            .arg(archiwum.katalog, FormatDaty(archiwum.data.date()), NapisTresci(archiwum), baza));
}

QString PrzywrocArchiwum(const QString& baza, const QString& archiwum, const QDateTime& chwila) {
    const QString czesc = niegotowa(baza);
    auto bezSladu = qScopeGuard([&] { UsunPlikBazy(czesc); });
    QString kopia;
    try {
        if (ZbadajPlik(baza).stan == StanPliku::Zajety)
            throw BladBazy(QStringLiteral("Plik „%1” jest otwarty w innym programie.").arg(baza));
        UsunPlikBazy(czesc);
        KopiujZamknieta(archiwum, czesc);
        sprawdzKopie(archiwum, czesc);
        if (PodgladPliku(czesc).wersja() > static_cast<int>(KrokiWersji().size()))
            throw BladBazy(QStringLiteral("Plik „%1” zapisał nowszy program.").arg(archiwum));
        {
            Polaczenie polaczenie(czesc, Polaczenie::Sposob::Istniejaca);
            ZakonczLancuch(polaczenie, QStringLiteral("Przywrócenie archiwum z pliku %1").arg(archiwum),
                           chwila);
        }
        QFile::remove(dziennikPliku(czesc));
        kopia = odlozObecna(baza, chwila);
        // From here on the restore is decided; the next start would finish it.
        ZamienPlik(czesc, przywracana(baza));
    } catch (const BladBazy& blad) {
        throw BladBazy(QStringLiteral("Archiwum nie zostało przywrócone, baza danych jest bez zmian. %1")
                           .arg(blad.komunikat()));
    }
    DokonczPrzywracanie(baza);
    return kopia;
}

bool DokonczPrzywracanie(const QString& baza) {
    if (!QFileInfo::exists(przywracana(baza))) return false;
    // The old file's journal would be played back into the new one.
    const QString dziennik = dziennikPliku(baza);
    if (QFileInfo::exists(dziennik) && !QFile::remove(dziennik))
        throw BladBazy(
            QStringLiteral("Nie można dokończyć przywracania archiwum: nie wolno usunąć pliku „%1”.")
                .arg(dziennik));
    ZamienPlik(przywracana(baza), baza);
    return true;
}

} // namespace tornel::start
