# Links of the pages, as they hold in the reference, where what they lead to lies beside them.
s,](\(\.\./\)\?\(examples\|catalog\)/\([A-Za-z0-9._-]*\)),](\3),g
s,\[\([^]]*\)\](LICENSE),<a href="LICENSE">\1</a>,g
