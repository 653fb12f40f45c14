Attribute VB_Name = "mdl_Pruefziffern"
Option Compare Database

' Zentlor:Ignore - übernommen aus einem alten Projekt, wird so nicht mehr gepflegt

Const MODUL_IBAN = 97

Function IbanGültig(sIban As String) As Boolean
    Dim sFolge, sRest, i, sZeichen
    sIban = Replace(sIban, " ", "")
    If Len(sIban) < 15 Then Exit Function
    sFolge = Mid(sIban, 5) & Left(sIban, 4)
    For i = 1 To Len(sFolge)
        sZeichen = UCase(Mid(sFolge, i, 1))
        If sZeichen >= "A" Then sZeichen = CStr(Asc(sZeichen) - 55)
        sRest = CStr(CLng(sRest & sZeichen) Mod MODUL_IBAN)
    Next i
    IbanGültig = (sRest = "1")
End Function

Function EanPrüfziffer(sEan As String) As Integer
    Dim i, nSumme
    For i = 1 To 12
        nSumme = nSumme + Val(Mid(sEan, i, 1)) * IIf(i Mod 2 = 0, 3, 1)
    Next i
    EanPrüfziffer = (10 - nSumme Mod 10) Mod 10
End Function

Function EanGültig(sEan As String) As Boolean
    If Len(sEan) <> 13 Then Exit Function
    EanGültig = (EanPrüfziffer(sEan) = Val(Right(sEan, 1)))
End Function
