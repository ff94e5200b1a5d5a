#pragma once

#include <QWidget>

#include <span>
#include <string_view>

class QButtonGroup;
class QGridLayout;

namespace verbdrills {

/// The option buttons of a person and of a number. One of each is always chosen.
class PersonAndNumber : public QWidget {
    Q_OBJECT

public:
    explicit PersonAndNumber(QWidget* parent = nullptr);

    /// 1 to 3.
    int person() const;

    /// A value of `quiz_number`.
    std::string_view number() const;

    /// Chooses the first person singular.
    void reset();

Q_SIGNALS:
    /// The learner has clicked an option.
    void chosen();

private:
    void addOptions(QButtonGroup* group, std::span<const char* const> names, int first, int column);

    QGridLayout* grid_;
    QButtonGroup* persons_;
    QButtonGroup* numbers_;
};

} // namespace verbdrills
