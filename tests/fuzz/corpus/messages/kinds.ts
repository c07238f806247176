<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
<name>A</name>
<message><source>One</source><translation type="unfinished">Eins</translation></message><message><source>Two</source><translation type="vanished">Zwei</translation></message><message numerus="yes"><source>%n</source><translation><numerusform>a</numerusform></translation></message><message><source></source><translation>x</translation></message>
</context>
</TS>
