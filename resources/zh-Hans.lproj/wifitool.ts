<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="zh_CN">
<context>
    <name>wifitool</name>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>开放</translation>
    </message>
    <message>
        <source>WPA-Personal</source>
        <translation>WPA 个人级</translation>
    </message>
    <message>
        <source>WPA-Enterprise</source>
        <translation>WPA 企业级</translation>
    </message>
    <message>
        <source>WPA/WPA2-Personal</source>
        <translation>WPA/WPA2 个人级</translation>
    </message>
    <message>
        <source>WPA/WPA2-Enterprise</source>
        <translation>WPA/WPA2 企业级</translation>
    </message>
    <message>
        <source>WPA2-Personal</source>
        <translation>WPA2 个人级</translation>
    </message>
    <message>
        <source>WPA2-Enterprise</source>
        <translation>WPA2 企业级</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Personal</source>
        <translation>WPA2/WPA3 个人级</translation>
    </message>
    <message>
        <source>WPA2/WPA3-Enterprise</source>
        <translation>WPA2/WPA3 企业级</translation>
    </message>
    <message>
        <source>WPA3-Personal</source>
        <translation>WPA3 个人级</translation>
    </message>
    <message>
        <source>WPA3-Enterprise</source>
        <translation>WPA3 企业级</translation>
    </message>
    <message>
        <source>OWE</source>
        <translation>增强型开放（OWE）</translation>
    </message>
    <message>
        <source>too common</source>
        <translation>太常见</translation>
    </message>
    <message>
        <source>too short</source>
        <translation>太短</translation>
    </message>
    <message>
        <source>insecure</source>
        <translation>不安全</translation>
    </message>
    <message>
        <source>weak</source>
        <translation>弱</translation>
    </message>
    <message>
        <source>fair</source>
        <translation>中</translation>
    </message>
    <message>
        <source>strong</source>
        <translation>强</translation>
    </message>
</context>
</TS>
