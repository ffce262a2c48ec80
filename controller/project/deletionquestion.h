#pragma once

#include <QCoreApplication>
#include <QString>

class Model;
struct DeletionPlan;

/// The question before measurements are deleted, in words.
class DeletionQuestion
{
    Q_DECLARE_TR_FUNCTIONS(DeletionQuestion)

public:
    /// What will really go: how many, and the number and time of each. Long lists are shortened. Also says where a
    /// malformed part ends the deletion, and if others go than those typed.
    [[nodiscard]] static QString details(const DeletionPlan &plan, const QString &range, const Model &model);
    /// How many measurements go if all do.
    [[nodiscard]] static QString detailsOfAll(int count);
};
