#pragma once

#include "model/project/projectdocument.h"
#include "tests/support/literals.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

/// The text of a document without gaps as Qt's own writer has it: what the streaming writer is measured against.
namespace reference {

template <typename Items>
QJsonArray array(const Items &items)
{
    QJsonArray result;
    for (const auto &item : items)
        result.append(item);
    return result;
}

inline QJsonObject viewData(const ProjectViewData &viewData)
{
    return {{"checkBoxMarkerAbsolute"_s, *viewData.markersAbsolute},
            {"osziMinValues"_s, array(*viewData.osziMinimum)},
            {"osziMaxValues"_s, array(*viewData.osziMaximum)}};
}

inline QJsonObject description(const ProjectDocument &document)
{
    return {{"fileVersion"_s, "7"_s},
            {"projectName"_s, *document.name},
            {"projectNumber"_s, *document.number},
            {"projectUser"_s, *document.user},
            {"projectDate"_s, *document.date},
            {"projectCustomer"_s, *document.customer},
            {"paramClosingForce"_s, *document.closingForce},
            {"paramInjectionTime"_s, *document.injectionTime},
            {"paramPressureTime"_s, *document.pressTime},
            {"paramPressure"_s, *document.pressure},
            {"clock"_s, *document.clock},
            {"comment"_s, *document.comment},
            {"mesotraType"_s, *document.mesotraType},
            {"hwVersion"_s, *document.hardwareVersion},
            {"swVersion"_s, *document.firmwareVersion},
            {"ViewData"_s, viewData(document.viewData)},
            {"markers"_s, array(*document.markers)},
            {"phases"_s, array(*document.phases)},
            {"corrections"_s, array(*document.corrections)},
            {"sensor minValues"_s, array(*document.sensorMinimum)},
            {"sensor maxValues"_s, array(*document.sensorMaximum)}};
}

inline QByteArray text(const ProjectDocument &document)
{
    QJsonObject json = description(document);
    for (std::size_t i = 0; i < document.images.size(); ++i) {
        const QString key = i == 0 ? "projectImage"_s : "projectImage%1"_s.arg(i);
        json[key] = QString::fromLatin1(document.images[i].toBase64());
    }
    for (std::size_t sensor = 0; sensor < document.samples.size(); ++sensor) {
        QJsonArray measurements;
        for (const SampleRun &run : *document.samples[sensor])
            measurements.append(array(SampleList(run.data(), run.data() + run.count())));
        json["sensor %1"_s.arg(sensor + 1)] = measurements;
        json["sensorName %1"_s.arg(sensor + 1)] = *document.sensorNames[sensor];
    }
    return QJsonDocument(json).toJson(QJsonDocument::Indented);
}

} // namespace reference
