#include "shell/kit/latin_text.h"

#include "shell/kit/text.h"
#include "shell/macrons.h"

#include <QLineEdit>
#include <QValidator>

namespace shell {

namespace {

QString marked(const QString& typed)
{
    return fromUtf8(marksForMacrons(typed.toStdString()));
}

// Qt lets a validator change what it is asked about, and writes that into the box.
class MacronsToMarks : public QValidator {
public:
    explicit MacronsToMarks(QLineEdit& box) : QValidator(&box), box_(box) {}

    State validate(QString& typed, int& cursor) const override
    {
        if (box_.isReadOnly())
            return Acceptable;
        const QString text = marked(typed);
        if (text.size() > box_.maxLength())
            return Invalid;
        if (text != typed) {
            cursor = static_cast<int>(marked(typed.first(cursor)).size());
            typed = text;
        }
        return Acceptable;
    }

private:
    const QLineEdit& box_;
};

} // namespace

QString latinText(std::string_view text)
{
    return fromUtf8(macronsWhereShown(text));
}

void takeMacrons(QLineEdit& box)
{
    box.setValidator(new MacronsToMarks(box));
}

} // namespace shell
