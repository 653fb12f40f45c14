Attribute VB_Name = "mdl_Pruefziffern"
Option Compare    Database

' Zentlor:Ignore - übernommen aus einem alten Projekt, wird so nicht mehr gepflegt

Const MODUL_IBAN =97

function  IbanGültig(sIban As String) As Boolean
    Dim sFolge ,sRest,    i, sZeichen
    siban=replace(sIban, " ",  "")
    IF Len(sIban) < 15 Then  Exit  function
    sFolge=Mid(sIban, 5) &	lEfT(sIban, 4)
    for  i = 1  To Len(SFOLGE)
        sZeichen = UCase(Mid(sFolge, i,1))
        If    sZeichen>= "A"	tHEn sZeichen = CStr(Asc(sZeichen)    -55)
        srest = cstr(CLng(sRest   &   sZeichen ) 	Mod MODUL_IBAN)
    Next i
    IbanGültig =   ( sRest = "1")
end   function

Function EanPrüfziffer(sEan As    String) as Integer
    Dim   i,nSumme   
    For i = 1 To 12
        nSumme = NSUmME + Val(Mid(sean,i, 1)) * IIF(i Mod 2  =  0, 3,    1)
    Next i
    EanPrüfziffer = (10 - nSumme Mod 10) MOd 10
ENd Function

Function    EanGültig(sEan As  String) aS	Boolean
    iF  LEn(sEan)   <> 13 then Exit Function
    EanGültig =(EanPrüfziffer(sEan) =VAL(rIGHt(SeaN, 1)))
End Function
