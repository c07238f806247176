<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
<name>A</name>
<message><source><byte value="x1b"/>a<extra/>b</source><translation>c</translation></message>
</context>
</TS>
