#include "ui/win32/accessible_words.h"

#include <algorithm>
#include <iterator>

namespace tavr::win32 {

namespace {

// As Windows and the language files of the program say it.
struct Words {
  std::string_view language;
  std::string_view close;
  std::string_view minimise;
  std::string_view about;
  std::string_view help;
  std::string_view check_all;
  std::string_view check_none;
};

constexpr Words kWords[] = {
    {"en", "Close", "Minimize", "About", "Help", "Select All", "Select None"},
    {"ar", "إغلاق", "تصغير", "حول البرنامج", "تعليمات", "تحديد الكل", "إلغاء تحديد الكل"},
    {"de", "Schließen", "Minimieren", "Über Spoorwipe", "Hilfe", "Alle auswählen",
     "Auswahl aufheben"},
    {"es", "Cerrar", "Minimizar", "Acerca de", "Ayuda", "Marcar todo", "Desmarcar todo"},
    {"fr", "Fermer", "Réduire", "À propos", "Aide", "Tout sélectionner", "Tout désélectionner"},
    {"it", "Chiudi", "Riduci a icona", "Informazioni", "Guida", "Seleziona tutto",
     "Deseleziona tutto"},
    {"ja", "閉じる", "最小化", "バージョン情報", "ヘルプ", "すべて選択", "すべて解除"},
    {"pl", "Zamknij", "Minimalizuj", "O programie", "Pomoc", "Zaznacz wszystko",
     "Odznacz wszystko"},
    {"pt", "Fechar", "Minimizar", "Acerca de", "Ajuda", "Marcar tudo", "Desmarcar tudo"},
    {"ru", "Закрыть", "Свернуть", "О программе", "Справка", "Выбрать всё", "Снять выделение"},
    {"tr", "Kapat", "Simge durumuna küçült", "Hakkında", "Yardım", "Tümünü seç", "Hiçbirini seçme"},
    {"zh", "关闭", "最小化", "关于", "帮助", "全选", "全不选"},
};

struct Sign {
  std::string_view name;
  std::string_view Words::*word;
};

constexpr Sign kSigns[] = {
    {"close", &Words::close}, {"minimise", &Words::minimise},   {"about", &Words::about},
    {"help", &Words::help},   {"check-all", &Words::check_all}, {"check-none", &Words::check_none},
};

}  // namespace

std::string_view wordOfSign(std::string_view sign, std::string_view language) {
  const auto shown = std::ranges::find(kSigns, sign, &Sign::name);
  if (shown == std::end(kSigns)) return "";
  const auto found = std::ranges::find(kWords, language, &Words::language);
  return (found == std::end(kWords) ? kWords[0] : *found).*(shown->word);
}

}  // namespace tavr::win32
