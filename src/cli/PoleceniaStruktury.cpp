#include "cli/Polecenia.h"
#include "common/Rozmowa.h"
#include "start/AktualizacjaBazy.h"
#include "start/Archiwum.h"
#include "store/Polaczenie.h"
#include "store/WersjaPliku.h"
#include <QDateTime>

namespace tornel::cli {

namespace {

const QString kKatalog = QStringLiteral("katalog");

/// The file itself, without the tables that a session opens: they may be what is to be mended.
class OtwartyPlik {
public:
    explicit OtwartyPlik(Wywolanie& w) : polaczenie(gotowy(w.sciezkaBazy()), Polaczenie::Sposob::Istniejaca) {
        DoprowadzDoWersji(polaczenie);
    }
    Polaczenie polaczenie;

private:
    static QString gotowy(const QString& sciezka) {
        DokonczPrzywracanie(sciezka);
        return sciezka;
    }
};

QString folder(const Wywolanie& w) {
    return w.argumenty.ma(kKatalog) ? w.argumenty.wartosc(kKatalog) : w.folderProgramu;
}

int zapisz(Wywolanie& w) {
    OtwartyPlik plik(w);
    return ZapiszStrukture(plik.polaczenie, folder(w), w.rozmowa) ? status::Wykonane : status::Odmowa;
}

int aktualizuj(Wywolanie& w) {
    OtwartyPlik plik(w);
    if (!w.rozmowa.pytanie(QStringLiteral("Czy na pewno aktualizować bazę danych ?"))) return status::Odmowa;
    const OtoczenieAktualizacji otoczenie{
        folder(w), QDateTime::currentDateTime(), {}, [&w](const QString&, QString raport) {
            w.pisz(raport.remove(u'\r'));
            return true;
        }};
    const WynikAktualizacji wynik = AktualizujBaze(plik.polaczenie, otoczenie, w.rozmowa);
    if (!wynik.kopia.isEmpty())
        w.rozmowa.komunikat(QStringLiteral("Baza sprzed aktualizacji jest w pliku „%1”.").arg(wynik.kopia),
                            Styl::Informacja);
    return wynik.bledow == 0 ? status::Wykonane : status::Odmowa;
}

} // namespace

QList<Polecenie> poleceniaStruktury() {
    return {
        {u"struktura zapisz",
         u"[--katalog KAT]",
         u"zapisuje strukturę bazy do plików Tabele.rec i Pola.rec w KAT albo w katalogu programu",
         0,
         0,
         {{kKatalog, u"KAT"}},
         zapisz},
        {u"struktura aktualizuj",
         u"[--katalog KAT]",
         u"dodaje do bazy tabele i pola z plików Tabele.rec i Pola.rec, zmienia typy pól; pisze raport "
         u"Aktua.log",
         0,
         0,
         {{kKatalog, u"KAT"}},
         aktualizuj},
    };
}

} // namespace tornel::cli
