#pragma once

#include <QString>
#include <QVariant>

class QObject;

// What a plug-in may ask of the host: send a request to the server, and reach a peer plug-in's object.
// The host owns the object; plug-ins keep the pointer they were given and never delete it.
class FrameworkWrapperBase
{
public:
    virtual ~FrameworkWrapperBase();
    virtual bool SendRequest(void* handle, const QString& senderPluginId, const QString& method,
                             const QVariant& argument, void* context, bool blocking, QString& errorText) = 0;
    virtual QObject* GetPluginObject(void* handle, const QString& pluginId) = 0;
};
