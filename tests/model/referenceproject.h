#pragma once

#include "model/projectfile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// The text of a document as Qt's own writer has it: what the streaming writer is measured against.
namespace reference {

template <typename Items>
QJsonArray array(const Items &items)
{
    QJsonArray result;
    for (const auto &item : items)
        result.append(item);
    return result;
}

inline QJsonObject viewData(const ProjectDocument &document)
{
    return {{QStringLiteral("checkBoxMarkerAbsolute"), document.markersAbsolute},
            {QStringLiteral("osziMinValues"), array(document.osziMinimum)},
            {QStringLiteral("osziMaxValues"), array(document.osziMaximum)}};
}

inline QJsonObject description(const ProjectDocument &document)
{
    return {{QStringLiteral("fileVersion"), QStringLiteral("7")},
            {QStringLiteral("projectName"), document.data.name},
            {QStringLiteral("projectNumber"), document.data.number},
            {QStringLiteral("projectUser"), document.data.user},
            {QStringLiteral("projectDate"), document.data.date},
            {QStringLiteral("projectCustomer"), document.data.customer},
            {QStringLiteral("paramClosingForce"), document.data.closingForce},
            {QStringLiteral("paramInjectionTime"), document.data.injectionTime},
            {QStringLiteral("paramPressureTime"), document.data.pressTime},
            {QStringLiteral("paramPressure"), document.data.pressure},
            {QStringLiteral("clock"), document.clock},
            {QStringLiteral("comment"), document.comment},
            {QStringLiteral("mesotraType"), document.mesotraType},
            {QStringLiteral("hwVersion"), document.hardwareVersion},
            {QStringLiteral("swVersion"), document.softwareVersion},
            {QStringLiteral("ViewData"), viewData(document)},
            {QStringLiteral("markers"), array(document.markers)},
            {QStringLiteral("phases"), array(document.phases)},
            {QStringLiteral("corrections"), array(document.corrections)},
            {QStringLiteral("sensor minValues"), array(document.sensorMinimum)},
            {QStringLiteral("sensor maxValues"), array(document.sensorMaximum)}};
}

inline QByteArray text(const ProjectDocument &document)
{
    QJsonObject json = description(document);
    for (std::size_t i = 0; i < document.images.size(); ++i) {
        const QString key = i == 0 ? QStringLiteral("projectImage") : QStringLiteral("projectImage%1").arg(i);
        json[key] = QString::fromLatin1(document.images[i].toBase64());
    }
    for (std::size_t sensor = 0; sensor < document.samples.size(); ++sensor) {
        QJsonArray measurements;
        for (const SampleRun &run : document.samples[sensor])
            measurements.append(array(run.samples->mid(0, run.count)));
        json[QStringLiteral("sensor %1").arg(sensor + 1)] = measurements;
        json[QStringLiteral("sensorName %1").arg(sensor + 1)] = document.sensorNames[sensor];
    }
    return QJsonDocument(json).toJson(QJsonDocument::Indented);
}

} // namespace reference
