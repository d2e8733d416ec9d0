#include "okna/Pomoc.h"
#include "common/Rozmowa.h"
#include "okna/frmPomoc.h"
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QStringDecoder>
#include <QTabWidget>

namespace tornel::okna {

namespace {

const QString kSpis = QStringLiteral("spis");

/// "Użytkownik (1)" as "uzytkownik-1".
QString naTemat(const QString& napis) {
    QString wynik;
    for (const QChar znak : napis.toLower().normalized(QString::NormalizationForm_D)) {
        if (znak.isMark()) continue;
        const QChar litera = znak == QChar(u'ł') ? QChar(u'l') : znak;
        if (litera.isLetterOrNumber())
            wynik += litera;
        else if (!wynik.isEmpty() && !wynik.endsWith(QLatin1Char('-')))
            wynik += QLatin1Char('-');
    }
    if (wynik.endsWith(QLatin1Char('-'))) wynik.chop(1);
    return wynik;
}

/// The caption of the tab that the screen shows; empty for a screen without tabs.
QString zakladka(const QWidget& ekran) {
    if (const auto* karty = ekran.findChild<QTabWidget*>()) return karty->tabText(karty->currentIndex());
    const auto* karty = ekran.findChild<QStackedWidget*>();
    return karty && karty->currentWidget() ? karty->currentWidget()->objectName() : QString();
}

/// From the nearest to the farthest: the tab, the screen, the screens from which it was opened, the contents.
QStringList tematyEkranu(const QWidget& widzet) {
    QStringList tematy;
    for (const QWidget* w = widzet.window(); w;
         w = w->parentWidget() ? w->parentWidget()->window() : nullptr) {
        if (w->objectName().isEmpty()) continue;
        tematy.append(w->objectName() + QLatin1Char('-') + naTemat(zakladka(*w)));
        tematy.append(w->objectName());
    }
    tematy.append(kSpis);
    return tematy;
}

} // namespace

Pomoc::Pomoc(QString plik, Rozmowa& rozmowa) : plik_(std::move(plik)), rozmowa_(rozmowa) {
    qApp->installEventFilter(this);
}

QString Pomoc::czytajPodrecznik() {
    QString powod;
    QFile plik(plik_);
    if (!plik.exists()) {
        powod = QStringLiteral("nie ma takiego pliku");
    } else if (!plik.open(QIODevice::ReadOnly)) {
        powod = QStringLiteral("pliku nie wolno odczytać");
    } else {
        QStringDecoder utf8(QStringDecoder::Utf8);
        QString tekst = utf8(plik.readAll());
        if (plik.error() == QFile::NoError && !utf8.hasError() &&
            tekst.contains(QStringLiteral("id=\"%1\"").arg(kSpis)))
            return tekst;
        powod = QStringLiteral("plik nie jest podręcznikiem programu albo jest uszkodzony");
    }
    // The message itself is a window in which F1 may be pressed.
    const QScopedValueRollback straz(wKomunikacie_, true);
    rozmowa_.komunikat(QStringLiteral("Nie można otworzyć pliku pomocy „%1”: %2.")
                           .arg(QDir::toNativeSeparators(plik_), powod),
                       Styl::Wykrzyknik);
    return {};
}

frmPomoc* Pomoc::okno(QWidget& ekran) {
    if (okno_ == &ekran) return okno_;
    if (!okno_) {
        const QString podrecznik = czytajPodrecznik();
        if (podrecznik.isEmpty()) return nullptr;
        okno_ = new frmPomoc(podrecznik, &ekran);
        if (!rozmiar_.isEmpty()) okno_->resize(rozmiar_);
    } else if (okno_->parentWidget() != &ekran) {
        // A modal screen leaves only its own children usable.
        okno_->setParent(&ekran, okno_->windowFlags());
    }
    return okno_;
}

void Pomoc::pokaz(QWidget& ekran, const QStringList& tematy) {
    if (wKomunikacie_) return;
    frmPomoc* pomoc = okno(ekran);
    if (!pomoc) return;
    pomoc->setAttribute(Qt::WA_ShowWithoutActivating, false);
    pomoc->show();
    pomoc->raise();
    pomoc->activateWindow();
    for (const QString& temat : tematy)
        if (pomoc->pokazTemat(temat)) return;
}

void Pomoc::pokaz(QWidget& widzet) {
    // The topics first: an open menu belongs to its screen, and goes away before another window opens.
    const QStringList tematy = tematyEkranu(widzet);
    QWidget* ekran = widzet.window();
    while (ekran->windowType() == Qt::Popup && ekran->parentWidget()) ekran = ekran->parentWidget()->window();
    while (QWidget* lista = QApplication::activePopupWidget())
        if (!lista->close()) break;
    pokaz(*ekran, tematy);
}

void Pomoc::pokazSpis(QWidget& ekran) { pokaz(*ekran.window(), {kSpis}); }

void Pomoc::poSchowaniu(QWidget& widzet) {
    if (!okno_) return;
    if (&widzet == okno_) {
        rozmiar_ = okno_->size();
    } else if (&widzet == okno_->parentWidget() && okno_->isVisible()) {
        // The handbook outlives the screen over which it was opened.
        QWidget* nizej = widzet.parentWidget();
        okno_->setAttribute(Qt::WA_ShowWithoutActivating);
        if (nizej) okno_->setParent(nizej->window(), okno_->windowFlags());
        okno_->setVisible(nizej);
    }
}

bool Pomoc::eventFilter(QObject* obiekt, QEvent* zdarzenie) {
    if (!obiekt->isWidgetType()) return false;
    auto& widzet = static_cast<QWidget&>(*obiekt);
    switch (zdarzenie->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress: {
        const auto& klawisz = static_cast<const QKeyEvent&>(*zdarzenie);
        if (klawisz.key() != Qt::Key_F1 || klawisz.modifiers() != Qt::NoModifier) return false;
        // F1 stands in the menu for the contents, yet it always means the screen: the key comes here first.
        zdarzenie->accept();
        if (zdarzenie->type() == QEvent::KeyPress) pokaz(widzet);
        return true;
    }
    case QEvent::WhatsThis:
        pokaz(widzet);
        return true;
    case QEvent::Hide:
        if (!zdarzenie->spontaneous()) poSchowaniu(widzet);
        return false;
    default:
        return false;
    }
}

} // namespace tornel::okna
