#include "cli/Polecenia.h"
#include "start/Przyklad.h"

namespace tornel::cli {

namespace {

int nowaBaza(Wywolanie& w) {
    UtworzBazeZSzablonu(w.argumenty.pozycje.first(), w.folderProgramu, w.rozmowa);
    return status::Wykonane;
}

int przyklad(Wywolanie& w) {
    const auto ile = [&w](const QString& opcja, int domyslnie, int min, int max) {
        if (!w.argumenty.ma(opcja)) return domyslnie;
        return liczbaZTekstu(w.argumenty.wartosc(opcja), min, max, QStringLiteral("--") + opcja);
    };
    const int pracownikow =
        ile(QStringLiteral("pracownicy"), kPracownikowPrzykladu, 1, kNajwiecejPracownikow);
    const int miesiecy = ile(QStringLiteral("miesiace"), kMiesiecyPrzykladu, 0, 12);
    UtworzPrzyklad(w.argumenty.pozycje.first(), pracownikow, miesiecy, w.folderProgramu);
    return status::Wykonane;
}

} // namespace

QList<Polecenie> poleceniaBazy() {
    return {
        {u"nowa-baza",
         u"PLIK",
         u"tworzy nową bazę danych z szablonu; istniejący plik to odmowa",
         1,
         1,
         {},
         nowaBaza},
        {u"przyklad",
         u"PLIK [--pracownicy N] [--miesiace M]",
         u"tworzy bazę z firmą przykładową: N pracowników (12), M policzonych miesięcy 2001 roku (3)",
         1,
         1,
         {{u"pracownicy", u"N"}, {u"miesiace", u"M"}},
         przyklad},
    };
}

} // namespace tornel::cli
