#include "okna/MenuListy.h"
#include "common/Blad.h"
#include "common/Pliki.h"
#include "druk/Tabela.h"
#include "druk/Wyjscie.h"
#include "okna/Drukowanie.h"
#include "okna/Mnemoniki.h"
#include "okna/RozmowaOkien.h"
#include "okna/WidokListy.h"
#include <QFileDialog>
#include <QHeaderView>
#include <QPushButton>

namespace tornel::okna {

namespace {

constexpr double kWierszListy = 5, kNaglowekListy = 7; // mm
/// A button of fewer letters is part of a field, as "..." is.
constexpr int kNajkrotszyNapis = 4;

QString tytulListy(const WidokListy& lista) {
    const QString tytul = lista.window()->windowTitle();
    return QString(tytul).remove(QStringLiteral("[*]")).trimmed();
}

bool jestPoleceniem(const QPushButton& przycisk) {
    const bool inny = przycisk.objectName() == QLatin1String("cmdPomoc") ||
                      przycisk.objectName() == QLatin1String("cmdAnuluj");
    return przycisk.isVisible() && !inny && przycisk.text().size() >= kNajkrotszyNapis;
}

void zapiszCsv(const WidokListy& lista) {
    QWidget* okno = lista.window();
    const QString tytul = tytulListy(lista);
    QString plik = QFileDialog::getSaveFileName(okno, tytul, tytul + QStringLiteral(".csv"),
                                                QStringLiteral("Plik CSV (*.csv)"));
    if (plik.isEmpty()) return;
    if (!plik.contains(QLatin1Char('.'))) plik += QStringLiteral(".csv");
    try {
        ZapiszPlik(plik, CsvWydruku(*UlozListe(lista)));
    } catch (const Blad& blad) {
        RozmowaOkien().komunikat(blad.komunikat(), Styl::Krytyczny);
    }
}

void drukujListe(const WidokListy& lista) {
    RozmowaOkien rozmowa;
    PokazWydruk(UlozListe(lista), Podglad::Tak, rozmowa, lista.window());
}

} // namespace

MenuListy::MenuListy(WidokListy& lista) : QMenu(&lista) {
    setObjectName(QStringLiteral("menuListy"));
    dodajPrzyciski(lista);
    addSeparator();
    const bool saWiersze = lista.lista().rowCount() > 0;
    const auto dodaj = [&](const QString& napis, const QKeySequence& klawisze, auto czynnosc) {
        QAction* polecenie = addAction(napis, &lista, czynnosc);
        polecenie->setShortcut(klawisze);
        polecenie->setEnabled(saWiersze);
    };
    dodaj(QStringLiteral("Kopiuj wiersze"), QKeySequence::Copy, [&lista] { lista.kopiuj(); });
    if (lista.selectionMode() != QAbstractItemView::SingleSelection)
        dodaj(QStringLiteral("Zaznacz wszystko"), QKeySequence::SelectAll, [&lista] { lista.selectAll(); });
    dodaj(QStringLiteral("Zapisz listę jako CSV..."), {}, [&lista] { zapiszCsv(lista); });
    dodaj(QStringLiteral("Drukuj listę..."), {}, [&lista] { drukujListe(lista); });
    addMenu(new MenuKolumn(lista, this));
    mnemoniki::nadaj(*this);
}

void MenuListy::dodajPrzyciski(const WidokListy& lista) {
    for (QPushButton* przycisk : lista.window()->findChildren<QPushButton*>()) {
        if (!jestPoleceniem(*przycisk)) continue;
        if (przycisk->menu()) {
            QAction* podmenu = addMenu(przycisk->menu());
            podmenu->setText(przycisk->text());
            podmenu->setEnabled(przycisk->isEnabled());
            continue;
        }
        QAction* polecenie = addAction(przycisk->icon(), przycisk->text(), przycisk, &QPushButton::click);
        polecenie->setEnabled(przycisk->isEnabled());
    }
}

MenuKolumn::MenuKolumn(WidokListy& lista, QWidget* rodzic) : QMenu(QStringLiteral("Kolumny"), rodzic) {
    setObjectName(QStringLiteral("menuKolumn"));
    const QList<int> widoczne = lista.widoczneKolumny();
    for (int k = 0; k < lista.lista().columnCount(); ++k) {
        const QString naglowek = lista.lista().headerData(k, Qt::Horizontal, Qt::DisplayRole).toString();
        if (naglowek.isEmpty()) continue; // a list of one kind of rows needs no heading
        QAction* kolumna = addAction(naglowek);
        kolumna->setCheckable(true);
        kolumna->setChecked(widoczne.contains(k));
        kolumna->setEnabled(widoczne != QList<int>{k});
        connect(kolumna, &QAction::toggled, &lista, [&lista, k](bool jest) { lista.pokazKolumne(k, jest); });
    }
    menuAction()->setVisible(actions().size() > 1);
    mnemoniki::nadaj(*this);
}

std::shared_ptr<const Uklad> UlozListe(const WidokListy& lista) {
    const ListaModel& model = lista.lista();
    const QList<int> widoczne = lista.widoczneKolumny();
    OpisWydruku opis{.nazwa = QStringLiteral("lista"), .tytul = tytulListy(lista)};
    opis.strona.poziomo = widoczne.size() > 6;
    int calosc = 0;
    for (const int k : widoczne) calosc += lista.udzialy().value(k, 1);
    QList<KolumnaDruku> kolumny;
    for (const int k : widoczne) {
        const QString naglowek = model.headerData(k, Qt::Horizontal, Qt::DisplayRole).toString();
        const auto wyrownanie = model.headerData(k, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
        kolumny.append({.naglowek = naglowek,
                        .szer = opis.strona.szerTresci() * lista.udzialy().value(k, 1) / std::max(calosc, 1),
                        .pole = static_cast<int>(kolumny.size()),
                        .doPrawej = (wyrownanie & Qt::AlignRight) != 0});
        opis.nazwyPol.append(naglowek.isEmpty() ? QStringLiteral("lista") : naglowek);
    }
    QList<QList<Wartosc>> wiersze;
    wiersze.reserve(model.rowCount());
    for (int i = 0; i < model.rowCount(); ++i) {
        QList<Wartosc> teksty;
        for (const int k : widoczne) teksty.append(model.widoczny(i).teksty.value(k));
        wiersze.append(std::move(teksty));
    }
    const QString ile = QStringLiteral("wierszy: %1").arg(model.rowCount());
    opis.arkusze = {
        {naglowekWydruku(opis.strona, {}, opis.tytul, ile),
         {.rola = Rola::NaglowekStrony,
          .wys = kNaglowekListy,
          .elementy = naglowkiKolumn(kolumny, 0, kNaglowekListy)},
         {.rola = Rola::Wiersz, .wys = kWierszListy, .elementy = komorkiWiersza(kolumny, kWierszListy)},
         stopkaStrony(opis.strona, opis.tytul)}};
    return std::make_shared<Uklad>(std::move(opis), std::make_shared<WierszeWPamieci>(std::move(wiersze)));
}

} // namespace tornel::okna
