<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>Vexlor::Studio::FindingTexts</name>
    <message numerus="yes">
        <source>%n preset(s)</source>
        <translation>
            <numerusform>%n preset</numerusform>
            <numerusform>%n presets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n error(s)</source>
        <translation>
            <numerusform>%n error</numerusform>
            <numerusform>%n errors</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n warning(s)</source>
        <translation>
            <numerusform>%n warning</numerusform>
            <numerusform>%n warnings</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The first %n are listed.</source>
        <translation>
            <numerusform>The first is listed.</numerusform>
            <numerusform>The first %n are listed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n preset(s) imported from %1</source>
        <translation>
            <numerusform>%n preset imported from %1</numerusform>
            <numerusform>%n presets imported from %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::OwnBitrates</name>
    <message numerus="yes">
        <source>Documents cannot hold a bitrate of one&apos;s own: in the file, %n preset(s) have Auto instead, &quot;%1&quot; among them. Limits are kept.</source>
        <translation>
            <numerusform>Documents cannot hold a bitrate of one&apos;s own: in the file, %n preset, &quot;%1&quot;, has Auto instead. Limits are kept.</numerusform>
            <numerusform>Documents cannot hold a bitrate of one&apos;s own: in the file, %n presets have Auto instead, &quot;%1&quot; among them. Limits are kept.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Vexlor::Studio::TreePane</name>
    <message numerus="yes">
        <source>%n preset(s) found</source>
        <translation>
            <numerusform>%n preset found</numerusform>
            <numerusform>%n presets found</numerusform>
        </translation>
    </message>
</context>
</TS>
