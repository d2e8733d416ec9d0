#include "cli/Konsola.h"
#include "cli/Polecenia.h"
#include "cli/RozmowaKonsoli.h"
#include "start/Foldery.h"
#include <algorithm>
#include <QCommandLineParser>
#include <QFileDevice>
#include <unistd.h>

namespace tornel::cli {

namespace {

/// Options that every command takes.
const QList<OpcjaPolecenia>& opcjeOgolne() {
    static const QList<OpcjaPolecenia> opcje = {
        {u"baza", u"PLIK"}, {u"tak", {}},  {u"nie", {}},     {u"odpowiedzi", u"PLIK"},
        {u"json", {}},      {u"help", {}}, {u"version", {}},
    };
    return opcje;
}

const QList<Polecenie>& polecenia() {
    static const QList<Polecenie> wszystkie =
        poleceniaBazy() + poleceniaRegul() + poleceniaKadr() + poleceniaNieobecnosci() + poleceniaTabel() +
        poleceniaMiesiecy() + poleceniaListy() + poleceniaNadgodzin() + poleceniaBanku() + poleceniaUmow() +
        poleceniaUmowOPrace() + poleceniaZus() + poleceniaPodatkow() + poleceniaZestawien() +
        poleceniaWydrukow() + poleceniaArchiwum() + poleceniaStruktury() + poleceniaDziennika();
    return wszystkie;
}

QString zUkladem(const Polecenie& polecenie) {
    return QStringLiteral("%1 %2").arg(polecenie.nazwa, polecenie.argumenty).trimmed();
}

QString pomoc() {
    QString tekst = QStringLiteral(
        "Użycie: tornel-cli [--baza PLIK] [--tak | --nie | --odpowiedzi PLIK] [--json] POLECENIE ...\n"
        "\n"
        "  --baza PLIK        baza danych; bez tej opcji Baza.ini i Tornel.mdb obok programu,\n"
        "                     a zainstalowanego w folderze danych użytkownika\n"
        "  --tak, --nie       ta sama odpowiedź na każde pytanie\n"
        "  --odpowiedzi PLIK  odpowiedzi z pliku UTF-8 o liniach: fragment pytania=T albo =N\n"
        "  --json             dane jako JSON, gdzie ma to sens\n"
        "  --                 za tym znakiem stoją argumenty, które zaczynają się minusem\n"
        "\n"
        "Polecenia:\n");
    for (const Polecenie& p : polecenia())
        tekst += QStringLiteral("  %1\n      %2\n").arg(zUkladem(p), p.opis);
    return tekst +
           QStringLiteral(
               "  pomoc\n      ten tekst\n"
               "  --version\n      wersja programu\n"
               "\n"
               "Pliki CSV: UTF-8, w pierwszym wierszu nazwy kolumn, między polami średniki, pola ze "
               "średnikiem,\n"
               "cudzysłowem lub końcem linii w cudzysłowach, przecinek dziesiętny, daty dd-mm-rrrr. Puste "
               "pole\n"
               "to brak daty, liczba 0 albo pusty tekst. Tabela miesięczna ma w nazwie rok i miesiąc, np.\n"
               "PLA200101. Do tabeli bez klucza wiersze są tylko dodawane. Import niczego nie obcina ani "
               "nie\n"
               "zaokrągla: wartość, która nie pasuje do kolumny, to odmowa, a w bazie nic się nie zmienia.\n"
               "\n"
               "Status: 0 wykonane, 1 odmowa lub błąd, 2 złe użycie.\n");
}

QList<OpcjaPolecenia> wszystkieOpcje() {
    QList<OpcjaPolecenia> opcje = opcjeOgolne();
    for (const Polecenie& p : polecenia())
        for (const OpcjaPolecenia& opcja : p.opcje)
            if (std::none_of(opcje.begin(), opcje.end(),
                             [&](const auto& o) { return o.nazwa == opcja.nazwa; }))
                opcje.append(opcja);
    return opcje;
}

/// Why the parser refused: it knows only unknown options, missing values and values that are too many.
QString powodOdmowy(const QCommandLineParser& parser, const QStringList& argumenty) {
    if (const QStringList nieznane = parser.unknownOptionNames(); !nieznane.isEmpty())
        return QStringLiteral("Nieznana opcja: %1. (Argument, który zaczyna się minusem, podaje się za --.)")
            .arg(nieznane.first());
    const QString& ostatni = argumenty.last();
    for (const OpcjaPolecenia& opcja : wszystkieOpcje())
        if (!opcja.wartosc.isEmpty() && ostatni == QStringLiteral("--%1").arg(opcja.nazwa))
            return QStringLiteral("Opcja %1 wymaga wartości.").arg(ostatni);
    return QStringLiteral("Wartość przy opcji, która jej nie ma.");
}

Argumenty czytajArgumenty(const QStringList& argumenty) {
    QCommandLineParser parser;
    for (const OpcjaPolecenia& opcja : wszystkieOpcje()) {
        QStringList nazwy{opcja.nazwa.toString()};
        if (opcja.nazwa == u"help") nazwy.prepend(QStringLiteral("h"));
        parser.addOption(QCommandLineOption(nazwy, {}, opcja.wartosc.toString()));
    }
    if (!parser.parse(QStringList{QStringLiteral("tornel-cli")} + argumenty))
        throw ZleUzycie(powodOdmowy(parser, argumenty));
    Argumenty wynik;
    wynik.pozycje = parser.positionalArguments();
    for (const OpcjaPolecenia& opcja : wszystkieOpcje())
        if (const QString nazwa = opcja.nazwa.toString(); parser.isSet(nazwa))
            wynik.opcje.insert(nazwa, parser.values(nazwa));
    return wynik;
}

/// The command that the first words name; takes them off.
const Polecenie& znajdzPolecenie(QStringList& pozycje) {
    if (pozycje.isEmpty()) throw ZleUzycie(QStringLiteral("Nie podano polecenia."));
    QStringList podobne;
    for (const Polecenie& p : polecenia()) {
        const QStringList slowa = p.nazwa.toString().split(QLatin1Char(' '));
        if (pozycje.mid(0, slowa.size()) == slowa) {
            pozycje = pozycje.mid(slowa.size());
            return p;
        }
        if (slowa.first() == pozycje.first()) podobne.append(slowa.last());
    }
    if (podobne.isEmpty()) throw ZleUzycie(QStringLiteral("Nieznane polecenie: %1.").arg(pozycje.first()));
    throw ZleUzycie(QStringLiteral("Po słowie %1 stoi jedno ze słów: %2.")
                        .arg(pozycje.first(), podobne.join(QStringLiteral(", "))));
}

void sprawdz(const Polecenie& polecenie, const Argumenty& argumenty) {
    const auto wsrod = [](const QList<OpcjaPolecenia>& opcje, const QString& nazwa) {
        return std::any_of(opcje.begin(), opcje.end(), [&](const auto& o) { return o.nazwa == nazwa; });
    };
    const auto zle = [&](const QString& powod) {
        throw ZleUzycie(powod + QStringLiteral("\nUżycie: tornel-cli ") + zUkladem(polecenie));
    };
    for (auto i = argumenty.opcje.keyBegin(); i != argumenty.opcje.keyEnd(); ++i)
        if (!wsrod(opcjeOgolne(), *i) && !wsrod(polecenie.opcje, *i))
            zle(QStringLiteral("Polecenie %1 nie ma opcji --%2.").arg(polecenie.nazwa, *i));
    if (argumenty.pozycje.size() < polecenie.najmniej) zle(QStringLiteral("Za mało argumentów."));
    if (argumenty.pozycje.size() > polecenie.najwiecej) zle(QStringLiteral("Za dużo argumentów."));
}

OdpowiedziKonsoli odpowiedzi(const Argumenty& argumenty) {
    const bool tak = argumenty.ma(QStringLiteral("tak")), nie = argumenty.ma(QStringLiteral("nie"));
    const bool plik = argumenty.ma(QStringLiteral("odpowiedzi"));
    if (tak + nie + plik > 1)
        throw ZleUzycie(QStringLiteral("Opcje --tak, --nie i --odpowiedzi wykluczają się."));
    if (plik) return OdpowiedziKonsoli::zPliku(argumenty.wartosc(QStringLiteral("odpowiedzi")));
    return tak || nie ? OdpowiedziKonsoli::jednakowe(tak) : OdpowiedziKonsoli();
}

void wypisz(QIODevice& urzadzenie, const QByteArray& tresc) {
    auto* plik = qobject_cast<QFileDevice*>(&urzadzenie);
    if (urzadzenie.write(tresc) != tresc.size() || (plik && !plik->flush()))
        throw Blad(QStringLiteral("Nie można zapisać wyniku na standardowym wyjściu."));
}

int wykonaj(const QStringList& podane, const QString& folderProgramu, QIODevice& wyjscie, QIODevice& bledy) {
    Argumenty argumenty = czytajArgumenty(podane);
    if (argumenty.ma(QStringLiteral("help")) || argumenty.pozycje.value(0) == QStringLiteral("pomoc")) {
        wypisz(wyjscie, pomoc().toUtf8());
        return status::Wykonane;
    }
    if (argumenty.ma(QStringLiteral("version"))) {
        wypisz(wyjscie, "tornel-cli " TORNEL_WERSJA "\n");
        return status::Wykonane;
    }
    const Polecenie& polecenie = znajdzPolecenie(argumenty.pozycje);
    sprawdz(polecenie, argumenty);
    const auto* plik = qobject_cast<QFileDevice*>(&bledy);
    RozmowaKonsoli rozmowa(odpowiedzi(argumenty), bledy, plik && isatty(plik->handle()));
    Wywolanie wywolanie(std::move(argumenty), FolderDanych(folderProgramu), rozmowa);
    const int wynik = polecenie.wykonaj(wywolanie);
    wypisz(wyjscie, wywolanie.wyjscie());
    return wynik;
}

} // namespace

int Konsola(const QStringList& argumenty, const QString& folderProgramu, QIODevice& wyjscie,
            QIODevice& bledy) {
    const auto zglos = [&bledy](const QString& tekst) { bledy.write(tekst.toUtf8() + '\n'); };
    try {
        return wykonaj(argumenty, folderProgramu, wyjscie, bledy);
    } catch (const ZleUzycie& zle) {
        zglos(zle.powod() + QStringLiteral("\nPomoc: tornel-cli pomoc"));
        return status::ZleUzycie;
    } catch (const Przerwanie& przerwanie) {
        zglos(przerwanie.powod());
    } catch (const Blad& blad) {
        zglos(blad.komunikat());
    } catch (const std::exception& wyjatek) {
        zglos(QStringLiteral("Nieoczekiwany błąd: ") + QString::fromUtf8(wyjatek.what()));
    }
    return status::Odmowa;
}

} // namespace tornel::cli
