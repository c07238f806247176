<!DOCTYPE TS [<!ENTITY a "aaaaaaaaaa"><!ENTITY b "&a;&a;&a;&a;">]>
<TS><context><name/><message><source>&b;&lt;&#65;</source><translation>&b;&amp;</translation></message></context></TS>