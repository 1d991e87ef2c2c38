<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>MainAppUi</name>
    <message numerus="yes">
        <source>%n item(s) did not answer and are taken by their names alone</source>
        <translation>
            <numerusform>%n item did not answer and is taken by its name alone</numerusform>
            <numerusform>%n items did not answer and are taken by their names alone</numerusform>
        </translation>
    </message>
</context>
</TS>
